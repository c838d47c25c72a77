#include "app/own/PreviewCache.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <utility>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Entry {
    QString key;
    std::mutex guard;
    std::shared_ptr<const SourcePreview> preview; // guarded
};

} // namespace

struct PreviewCache::State {
    std::mutex guard;
    Moment minute;                               // guarded
    std::vector<std::shared_ptr<Entry>> entries; // guarded
};

PreviewCache::PreviewCache(std::shared_ptr<DispatchQueue> queue)
    : m_state(std::make_shared<State>())
    , m_queue(std::move(queue)) {}

PreviewCache::~PreviewCache() = default;

std::shared_ptr<const SourcePreview> PreviewCache::previewOf(const QString& path, const QString& settings,
                                                             Moment now, const Make& make) {
    const QFileInfo file(path);
    const QString key = u"%1\n%2\n%3\n%4"_s.arg(path)
                            .arg(file.size())
                            .arg(file.lastModified().toMSecsSinceEpoch())
                            .arg(settings);
    const Moment minute = std::chrono::floor<std::chrono::minutes>(now);
    std::shared_ptr<Entry> entry;
    {
        const std::lock_guard lock(m_state->guard);
        if (m_state->minute != minute) {
            m_state->minute = minute;
            m_state->entries.clear();
        }
        const auto known =
            std::ranges::find(m_state->entries, key, [](const auto& each) { return each->key; });
        if (known != m_state->entries.end()) {
            entry = *known;
        } else {
            entry = std::make_shared<Entry>();
            entry->key = key;
            m_state->entries.push_back(entry);
        }
        if (m_state->entries.size() == 1) {
            m_queue->asyncAfter(std::chrono::minutes(1), [weak = std::weak_ptr(m_state), minute] {
                if (const auto state = weak.lock()) {
                    const std::lock_guard each(state->guard);
                    if (state->minute == minute) {
                        state->entries.clear();
                    }
                }
            });
        }
    }
    const std::lock_guard lock(entry->guard);
    if (!entry->preview) {
        entry->preview = make();
    }
    return entry->preview;
}

} // namespace guide

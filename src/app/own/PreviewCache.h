#pragma once

#include "core/own/SourcePreview.h"
#include "platform/Moment.h"
#include "platform/queues/DispatchQueue.h"

#include <QString>

#include <functional>
#include <memory>

namespace guide {

/// The previews that were made in the running minute: what is on now changes with it. Any thread.
class PreviewCache {
  public:
    /// Makes a preview; null when it was stopped, so that the preview says nothing.
    using Make = std::function<std::shared_ptr<const SourcePreview>()>;

    /// They are freed on the queue.
    explicit PreviewCache(std::shared_ptr<DispatchQueue> queue);
    ~PreviewCache();

    /// The preview of the file as it is now, read with the settings: made by one caller, for which others
    /// wait.
    std::shared_ptr<const SourcePreview> previewOf(const QString& path, const QString& settings, Moment now,
                                                   const Make& make);

  private:
    struct State;
    const std::shared_ptr<State> m_state;
    const std::shared_ptr<DispatchQueue> m_queue;
};

} // namespace guide

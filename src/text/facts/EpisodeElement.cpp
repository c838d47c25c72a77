#include "text/facts/EpisodeElement.h"

#include "text/facts/EpisodeNotation.h"

#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// Fields of "season.episode.part" with totals behind "/", counted from 0.
EpisodeNumber numberOfFields(const QString& text) {
    EpisodeNumber number;
    const QStringList fields = text.split(u'.');
    const auto read = [&fields](qsizetype index, int most, std::optional<int>& value,
                                std::optional<int>* total) {
        if (index >= fields.size()) {
            return;
        }
        const QStringList parts = fields[index].split(u'/');
        bool isNumber = false;
        const int first = parts[0].trimmed().toInt(&isNumber);
        if (isNumber && first >= 0 && first < most) {
            value = first + 1;
        }
        const int count = parts.size() > 1 ? parts[1].trimmed().toInt() : 0;
        if (total && value && count >= *value && count <= most) {
            *total = count;
        }
    };
    read(0, kMostSeason, number.season, nullptr);
    read(1, kMostEpisode, number.episode, &number.episodes);
    // Without others a part says nothing.
    read(2, kMostSeason, number.part, &number.parts);
    if (number.parts.value_or(0) < 2) {
        if (number.part == 1) {
            number.part.reset();
        }
        number.parts.reset();
    }
    return number;
}

} // namespace

EpisodeNumber episodeOfElement(const QString& system, const QString& text, const QString& language) {
    if (system == u"xmltv_ns"_s || (system.isEmpty() && text.count(u'.') == 2)) {
        return numberOfFields(text);
    }
    const bool isKnown = system.isEmpty() || system == u"onscreen"_s || system == u"common"_s ||
                         system == u"SxxExx"_s || system == u"SxxxExxx"_s;
    if (!isKnown) {
        return {};
    }
    QStringView view = QStringView(text).trimmed();
    if (view.startsWith(u'(') && view.endsWith(u')')) {
        view = view.sliced(1, view.size() - 2);
    }
    return episodeNotation(view, language).value_or(EpisodeNumber());
}

} // namespace guide

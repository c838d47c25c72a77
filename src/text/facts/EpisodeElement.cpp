#include "text/facts/EpisodeElement.h"

#include "text/facts/EpisodeNotation.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// A number behind blanks; nothing when there is anything else.
std::optional<int> numberIn(QStringView text) {
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

/// Fields of "season.episode.part" with totals behind "/", counted from 0.
EpisodeNumber numberOfFields(QStringView text) {
    EpisodeNumber number;
    const auto read = [&text](int most, std::optional<int>& value, std::optional<int>* total) {
        const qsizetype dot = text.indexOf(u'.');
        const QStringView field = text.first(dot < 0 ? text.size() : dot);
        text = text.sliced(dot < 0 ? text.size() : dot + 1);
        const qsizetype slash = field.indexOf(u'/');
        const auto first = numberIn(field.first(slash < 0 ? field.size() : slash));
        if (first && *first >= 0 && *first < most) {
            value = *first + 1;
        }
        QStringView behind = slash < 0 ? QStringView() : field.sliced(slash + 1);
        behind.truncate(behind.indexOf(u'/') < 0 ? behind.size() : behind.indexOf(u'/'));
        const int count = numberIn(behind).value_or(0);
        if (total && value && count >= *value && count <= most) {
            *total = count;
        }
    };
    read(kMostSeason, number.season, nullptr);
    read(kMostEpisode, number.episode, &number.episodes);
    // Without others a part says nothing.
    read(kMostSeason, number.part, &number.parts);
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

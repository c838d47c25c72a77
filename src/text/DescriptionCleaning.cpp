#include "text/FeedTextCleaning.h"
#include "text/TextPatterns.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCredit = "Regia - "_L1;

void trimCarriageReturns(QString& text) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u'\r') {
        ++begin;
    }
    while (end > begin && text[end - 1] == u'\r') {
        --end;
    }
    text = text.mid(begin, end - begin);
}

void removeAttributions(QString& text, const QString& siteHost) {
    if (!text.contains("http://"_L1)) {
        return;
    }
    text.remove(u"(više na http://"_s + siteHost + u')');
    text.remove(u"(more at http://"_s + siteHost + u')');
}

struct Marker {
    qsizetype start;
    qsizetype end;
};

/// The first of the markers, in their order, that the text has.
template <std::size_t Count>
std::optional<Marker> firstMarker(const QString& text, const std::array<QStringView, Count>& markers) {
    for (const QStringView marker : markers) {
        if (const qsizetype start = text.indexOf(marker); start >= 0) {
            return Marker{start, start + marker.size()};
        }
    }
    return std::nullopt;
}

QString restOfLine(const QString& text, qsizetype from) {
    const qsizetype end = text.indexOf(u'\n', from);
    return text.mid(from, end < 0 ? -1 : end - from);
}

/// Credits of the form "Uloge: … Redatelj: …", from `cast` on.
void takeLabelledCredits(CleanedDescription& show, const QString& text, const Marker& cast) {
    qsizetype credits = cast.start;
    if (!show.roles) {
        show.roles = restOfLine(text, cast.end);
    }
    show.roles = withoutLabelTails(*show.roles);
    static constexpr std::array<QStringView, 3> kDirectors{u"Scenarist i redatelj: ", u"Redatelj: ",
                                                           u"Režija: "};
    if (const auto director = firstMarker(text, kDirectors)) {
        credits = std::min(credits, director->start);
        show.directedBy = withoutLabelTails(restOfLine(text, director->end));
    }
    show.description = text.left(credits);
}

void appendName(QString& names, QStringView name) {
    if (!names.isEmpty()) {
        names += ", "_L1;
    }
    names += name;
}

/// Credits of the form "Regia - …, actor, actor", from the first one on.
void takeListedCredits(CleanedDescription& show, const QString& text) {
    qsizetype credits = text.size();
    for (const QLatin1StringView marker : {"\nRegia - "_L1, ", Regia - "_L1, " Regia - "_L1}) {
        if (const qsizetype start = text.indexOf(marker); start >= 0) {
            credits = std::min(credits, start);
        }
    }
    if (credits == text.size()) {
        show.description = text;
        return;
    }
    QString directors;
    QString actors;
    const QStringView all(text);
    for (qsizetype position = text.indexOf(kCredit); position <= all.size();) {
        const auto* separator = std::find_if(all.begin() + position, all.end(),
                                             [](QChar unit) { return unit == u',' || unit == u'\n'; });
        const qsizetype end = separator - all.begin();
        const qsizetype start = position < end && all[position] == u' ' ? position + 1 : position;
        const QStringView piece = all.sliced(start, end - start);
        if (const qsizetype credit = piece.indexOf(kCredit); credit >= 0) {
            appendName(directors, piece.sliced(credit + kCredit.size()));
        } else {
            appendName(actors, piece);
        }
        position = end + 1;
    }
    show.description = text.left(credits);
    if (!directors.isEmpty()) {
        show.directedBy = directors;
    }
    if (!actors.isEmpty()) {
        show.roles = actors;
    }
}

/// A blank line, and a line end behind a full stop, stay as one line end; every other line end becomes a
/// blank.
void mendLineEnds(QString& text) {
    if (text.contains(u'\n')) {
        text.replace("\n\n"_L1, "\r"_L1);
        text.replace(".\n"_L1, ".\r"_L1);
        text.replace(u'\n', u' ');
    }
    text.replace(u'\r', u'\n');
}

} // namespace

CleanedDescription cleanDescription(CleanedDescription show, const QString& siteHost) {
    if (!show.description || show.description->isEmpty()) {
        return show;
    }
    QString text = *std::move(show.description);
    trimCarriageReturns(text);
    removeAttributions(text, siteHost);
    static constexpr std::array<QStringView, 2> kCast{u"Uloge: ", u"Cu: "};
    if (const auto cast = firstMarker(text, kCast)) {
        takeLabelledCredits(show, text, *cast);
    } else {
        takeListedCredits(show, text);
    }
    QString& description = *show.description;
    mendLineEnds(description);
    if (description.startsWith("; "_L1)) {
        description.remove(0, 2);
    }
    if (!description.isEmpty() && !description.endsWith(u'.')) {
        description += u'.';
    }
    return show;
}

} // namespace guide

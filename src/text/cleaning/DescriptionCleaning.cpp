#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/TextPatterns.h"

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// A marker, and the character in it that few texts contain, which is searched for first.
struct Marker {
    QStringView text;
    QChar sign;
};

constexpr std::array kCast{Marker{u"Uloge: ", u':'}, Marker{u"Cu: ", u':'}};
constexpr std::array kDirectors{Marker{u"Scenarist i redatelj: ", u':'}, Marker{u"Redatelj: ", u':'},
                                Marker{u"Režija: ", u':'}};
constexpr Marker kCredit{u"Regia - ", u'-'};

/// The position of the marker; negative if it is absent.
qsizetype find(QStringView text, const Marker& marker, qsizetype from = 0) {
    const qsizetype before = marker.text.indexOf(marker.sign);
    for (qsizetype at = text.indexOf(marker.sign, from + before); at >= 0;
         at = text.indexOf(marker.sign, at + 1)) {
        if (text.sliced(at - before).startsWith(marker.text)) {
            return at - before;
        }
    }
    return -1;
}

struct Found {
    qsizetype start;
    qsizetype end;
};

/// The first of the markers, in their order, that the text contains.
template <std::size_t Count>
std::optional<Found> findFirst(QStringView text, const std::array<Marker, Count>& markers) {
    for (const Marker& marker : markers) {
        if (const qsizetype start = find(text, marker); start >= 0) {
            return Found{start, start + marker.text.size()};
        }
    }
    return std::nullopt;
}

void trimCarriageReturns(QString& text) {
    while (text.endsWith(u'\r')) {
        text.chop(1);
    }
    qsizetype begin = 0;
    while (begin < text.size() && text[begin] == u'\r') {
        ++begin;
    }
    text.remove(0, begin);
}

void removeAttributions(QString& text, const QString& siteHost) {
    if (find(text, {u"http://", u':'}) >= 0) {
        text.remove(u"(više na http://"_s + siteHost + u')');
        text.remove(u"(more at http://"_s + siteHost + u')');
    }
}

QString restOfLine(const QString& text, qsizetype from) {
    const qsizetype end = text.indexOf(u'\n', from);
    return text.mid(from, end < 0 ? -1 : end - from);
}

/// Reads credits of the form "Uloge: … Redatelj: …", from `cast` on.
void takeLabelledCredits(CleanedDescription& show, QString& text, const Found& cast) {
    qsizetype credits = cast.start;
    if (!show.roles) {
        show.roles = restOfLine(text, cast.end);
    }
    show.roles = withoutLabelTails(*show.roles);
    if (const auto director = findFirst(text, kDirectors)) {
        credits = std::min(credits, director->start);
        show.directedBy = withoutLabelTails(restOfLine(text, director->end));
    }
    text.truncate(credits);
}

void appendName(QString& names, QStringView name) {
    if (!names.isEmpty()) {
        names += ", "_L1;
    }
    names += name;
}

/// Where credits of the form "Regia - …" begin, including a preceding line end, comma and blank, or blank.
std::optional<qsizetype> listedCreditsIn(QStringView text, qsizetype credit) {
    for (; credit >= 0; credit = find(text, kCredit, credit + 1)) {
        const QStringView before = text.first(credit);
        if (before.endsWith(u'\n')) {
            return credit - 1;
        }
        if (before.endsWith(u' ')) {
            return before.endsWith(u", ") ? credit - 2 : credit - 1;
        }
    }
    return std::nullopt;
}

/// Reads credits of the form "Regia - …, actor, actor", from the first one on.
void takeListedCredits(CleanedDescription& show, QString& text) {
    const qsizetype first = find(text, kCredit);
    const auto credits = listedCreditsIn(text, first);
    if (!credits) {
        return;
    }
    QString directors;
    QString actors;
    const QStringView all(text);
    for (qsizetype position = first; position <= all.size();) {
        const auto* separator = std::find_if(all.begin() + position, all.end(),
                                             [](QChar unit) { return unit == u',' || unit == u'\n'; });
        const qsizetype end = separator - all.begin();
        const qsizetype start = position < end && all[position] == u' ' ? position + 1 : position;
        const QStringView piece = all.sliced(start, end - start);
        if (const qsizetype credit = find(piece, kCredit); credit >= 0) {
            appendName(directors, piece.sliced(credit + kCredit.text.size()));
        } else {
            appendName(actors, piece);
        }
        position = end + 1;
    }
    if (!directors.isEmpty()) {
        show.directedBy = directors;
    }
    if (!actors.isEmpty()) {
        show.roles = actors;
    }
    text.truncate(*credits);
}

/// A blank line, a line end after a full stop and a carriage return each become one line end; every other
/// line end becomes a blank.
void normaliseLineEnds(QString& text) {
    if (!text.contains(u'\n') && !text.contains(u'\r')) {
        return;
    }
    QChar* const begin = text.data();
    const QChar* const end = begin + text.size();
    QChar* to = begin;
    for (const QChar* from = begin; from < end; ++from) {
        QChar unit = *from;
        if (unit == u'\r') {
            unit = u'\n';
        } else if (unit == u'\n' && from + 1 < end && from[1] == u'\n') {
            ++from;
        } else if (unit == u'\n' && (to == begin || to[-1] != u'.')) {
            unit = u' ';
        }
        *to++ = unit;
    }
    text.truncate(to - begin);
}

} // namespace

CleanedDescription cleanDescription(CleanedDescription show, const QString& siteHost) {
    if (!show.description || show.description->isEmpty()) {
        return show;
    }
    QString text = *std::move(show.description);
    trimCarriageReturns(text);
    removeAttributions(text, siteHost);
    if (const auto cast = findFirst(text, kCast)) {
        takeLabelledCredits(show, text, *cast);
    } else {
        takeListedCredits(show, text);
    }
    QString& description = show.description.emplace(std::move(text));
    normaliseLineEnds(description);
    if (description.startsWith("; "_L1)) {
        description.remove(0, 2);
    }
    if (!description.isEmpty() && !description.endsWith(u'.')) {
        // Automatic growth would double the allocation.
        description.reserve(description.size() + 1);
        description += u'.';
    }
    return show;
}

} // namespace guide

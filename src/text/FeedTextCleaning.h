#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

namespace guide {

// Feeds pack several things into free text: a title with an episode tail, country and year, a repeat mark; a
// subtitle with bracketed category words; a description with cast, director and attribution. These take such
// text apart.

/// The display title: without stretches in parentheses and brackets, up to the first comma (unless it is one
/// of a few titles with a comma of their own), and capitalised by the locale where it came in capitals.
QString showTitle(const QString& text, const QLocale& locale = QLocale());

/// The tail of a title that describes the show; nothing when there is none.
std::optional<QString> showInstantDescription(const QString& text);

/// Whether the tail holds country and year, as "(USA/1999)".
bool hasProductionNote(const QString& text);

/// Whether the title carries a repeat mark.
bool isRepeatMarked(const QString& text);

/// A stretch of a text, in UTF-16 units.
struct TextRange {
    qsizetype start = 0;
    qsizetype size = 0;
};

/// The first "[" with the last "]" behind it on its line; nothing when there is none.
std::optional<TextRange> bracketRange(QStringView text);

/// Takes the bracketed stretch out of the subtitle and answers it, brackets included. A ". (…)" around what
/// is left and one separator in front of it go too.
QString applySubtitleBracket(QString& subtitle, qsizetype start, qsizetype size);

/// Where a subtitle ends up. A field that is unset here is unset in the show.
struct FinishedSubtitle {
    std::optional<QString> subtitle1;
    std::optional<QString> instantDetails1;
};

/// Takes blanks and one pair of wrapping parentheses off the subtitle. It is a category, and goes to the
/// instant details, when one of its words was recognised.
FinishedSubtitle finishSubtitle(const std::optional<QString>& subtitle, bool recognised);

struct CleanedDescription {
    std::optional<QString> description;
    std::optional<QString> roles;
    std::optional<QString> directedBy;
};

/// Takes cast, director and the attribution to `siteHost` out of the description and mends its line ends and
/// its full stop. Cast that is known already is kept. An unset or empty description changes nothing.
CleanedDescription cleanDescription(CleanedDescription show, const QString& siteHost);

} // namespace guide

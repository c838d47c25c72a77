#pragma once

#include "text/TextRange.h"

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

namespace guide {

// Feeds pack several things into free text: a title with an episode suffix, country and year, a repeat mark;
// a subtitle with bracketed category words; a description with cast, director and attribution. These
// functions separate them.

/// The display title: without parts in parentheses and brackets, up to the first comma (except for a few
/// titles that contain one), and recapitalised by the locale if it is all capitals.
QString showTitle(const QString& text, const QLocale& locale = QLocale());

/// The end of a title that describes the show, if any.
std::optional<QString> showInstantDescription(const QString& text);

/// Whether the end of the title contains country and year, as in "(USA/1999)".
bool hasProductionNote(const QString& text);

/// Whether the title has a repeat mark.
bool isRepeatMarked(const QString& text);

/// From the first "[" to the last "]" after it on the same line; empty if there is none.
std::optional<TextRange> bracketRange(QStringView text);

/// Removes the bracketed part from the subtitle and returns it, brackets included. A ". (…)" around the rest
/// and one separator in front of it are removed too.
QString applySubtitleBracket(QString& subtitle, qsizetype start, qsizetype size);

/// The fields that a subtitle sets. A field that is unset here is unset in the show.
struct FinishedSubtitle {
    std::optional<QString> subtitle1;
    std::optional<QString> instantDetails1;
};

/// Removes blanks and one pair of enclosing parentheses from the subtitle. If one of its words is a known
/// category, the subtitle becomes the instant details.
FinishedSubtitle finishSubtitle(const std::optional<QString>& subtitle, bool recognised);

struct CleanedDescription {
    std::optional<QString> description;
    std::optional<QString> roles;
    std::optional<QString> directedBy;
};

/// Removes cast, director and the attribution to `siteHost` from the description, and repairs its line ends
/// and full stop. A cast that is already known is kept. An unset or empty description changes nothing.
CleanedDescription cleanDescription(CleanedDescription show, const QString& siteHost);

} // namespace guide

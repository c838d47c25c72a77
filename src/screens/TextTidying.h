#pragma once

#include <QString>
#include <QStringList>

namespace guide {

/// The text as it is displayed: without runs of white space and of empty lines, without a dash at its start,
/// with a blank between sentences, and with one closing mark where a source or a reader has put a full stop
/// behind another mark.
QString tidied(const QString& text);

/// A description as it is displayed below the headings: tidied, without copies of its own beginning at
/// the ends of its lines, and without a heading that it repeats at its start. Empty if it says nothing else.
QString tidiedDescription(const QString& text, const QStringList& headings);

} // namespace guide

#pragma once

#include <QString>

namespace guide {

/// The forms of a channel's name under which it is looked up.
struct ChannelNameKeys {
    /// Without case, diacritics, script, blanks, the prefix of a country, and marks of quality and country.
    /// Digits and "+1" stay: they tell channels apart.
    QString exact;
    /// The words of the exact form in order, without those that channels have in common, such as "TV".
    QString near;
};
ChannelNameKeys channelNameKeys(const QString& name);

/// The form of a channel id under which it is looked up: without case, diacritics, punctuation, and the mark
/// of a quality behind "@".
QString channelIdKey(const QString& id);

} // namespace guide

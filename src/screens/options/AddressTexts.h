#pragma once

#include <QString>

namespace guide {

/// What a person typed or pasted as the address of a shared place, with the password of a database apart.
struct PlaceInput {
    QString address;
    QString password = {};

    friend bool operator==(const PlaceInput&, const PlaceInput&) = default;
};

/// Takes the password out of the address of a database. Anything else is the address as it is.
PlaceInput withoutPassword(const QString& typed);
/// Puts the password back into the address. An address without a user remains as it is.
QString withPassword(const PlaceInput& input);

/// The path, with "~" for the home folder.
QString pathForPeople(const QString& path);

} // namespace guide

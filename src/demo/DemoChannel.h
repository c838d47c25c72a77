#pragma once

#include "demo/DayPlan.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace guide {

/// A made-up channel, as the catalogue lists it and as its feed knows it.
struct DemoChannel {
    /// The names of its icon and of its feed's file, where it has one of its own.
    QString key;
    QString title;
    /// 24 hexadecimal digits.
    QString location;
    QString language;
    QString region;
    Character character = Character::General;
    /// The languages of its shows, one or two.
    QStringList spoken;
    /// IANA name of the zone whose mornings and evenings it keeps.
    QByteArray zone;
    /// The grammar rules of its films, most frequent ones twice.
    QStringList films;
    /// Its source ids in order of preference, as sourceOnServer takes them.
    QStringList sources;
    /// How its feed names it.
    QString feedId;
    /// Its place among the channels, which keeps their series apart.
    int number = 0;
};

/// All channels of the demo, in the order of the catalogue.
const std::vector<DemoChannel>& demoChannels();

/// The source id with the server's base, or its host and port, in their places.
QString sourceOnServer(const QString& source, const QString& base);

/// The identities that the demo selects first, in order.
QStringList demoSelection();

} // namespace guide

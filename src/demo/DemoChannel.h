#pragma once

#include "demo/schedule/DayPlan.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace guide {

/// A channel of the demo: the data of its catalogue row and of its feed.
struct DemoChannel {
    /// The name of its icon and, if it has one, of its feed's file.
    QString key;
    QString title;
    /// 24 hexadecimal digits.
    QString location;
    QString language;
    QString region;
    ChannelProfile profile = ChannelProfile::General;
    /// The languages of its shows, one or two.
    QStringList spoken;
    /// IANA name of the zone in which its days begin.
    QByteArray zone;
    /// The text rules of its films; a rule listed twice is chosen twice as often.
    QStringList films;
    /// Its source ids in order of preference, with the placeholders of sourceOnServer.
    QStringList sources;
    /// Its id in its feed.
    QString feedId;
    bool hasStream = false;
    /// Its position among the channels, from 1; makes its series differ from those of other channels.
    int number = 0;
};

/// All channels of the demo, in the order of the catalogue.
const std::vector<DemoChannel>& demoChannels();

/// The source id with the server's base URL for "%1" and its host and port for "%2".
QString sourceOnServer(const QString& source, const QString& base);

/// The identities of the channels that are selected at first, in order.
QStringList demoSelection();

} // namespace guide

#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <cstdint>

namespace guide {

/// One to three characters that stand for a channel of this title: "ČT1" for "ČT 1 HD", "NC" for "Nova
/// Cinema". Marks of quality and country are left out, numbers are not.
QString channelInitials(const QString& title);

/// A colour of the channel, from a number that tells it from others. White text and both light and dark
/// backgrounds contrast with it.
QColor channelColor(std::uint64_t seed);

/// The initials on a plate in a colour that the title alone decides, so that the channel looks the same
/// before and after it is chosen and on every device. Without fonts, which need a QGuiApplication, the plate
/// alone. Any thread.
QImage channelInitialsIcon(const QString& title, const QSize& pixels);

} // namespace guide

#pragma once

#include "core/own/OwnSource.h"
#include "core/own/SourcePreview.h"
#include "core/own/SourceStatus.h"
#include "platform/Device.h"

#include <QString>

#include <chrono>
#include <vector>

namespace guide {

/// What is being read: "Reading: 120 channels, 4.2 MB".
QString readingText(int channels, std::int64_t bytes, const QLocale& locale);
/// A sentence that says how the attempt ended and, if it did not go well, what to do.
QString sourceResultText(SourceResult result, const QString& detail);
/// Whether the user should know about the result.
bool isProblem(SourceResult result);

QString sourceWarningText(SourceWarning warning, const SourcePreview& preview, const Device& device);

QString shiftText(std::chrono::minutes shift, const QLocale& locale);
/// The shifts that the user can choose from: halves of an hour from -12 to +14 hours, and `current`.
std::vector<std::chrono::minutes> shiftChoices(std::chrono::minutes current);

/// The languages that the user can choose from, by name; `current` among them, and none first.
std::vector<QString> languageChoices(const QString& current, const QLocale& locale);
/// "Unknown" for none.
QString languageText(const QString& language, const QLocale& locale);

/// How many channels of other sources take their schedules from it.
int servedChannels(const OwnSourceId& feed, const std::vector<OwnSource>& sources);

/// Weekday, date and time, in short forms.
QString dayAndTime(Moment moment, const Device& device);
/// The same without the date for the six days before and after today.
QString nearDayAndTime(Moment moment, Moment now, const Device& device);
QString timeOfDay(Moment moment, const Device& device);
/// What is on, for the second line of a channel; empty for nothing.
QString onNowText(const std::optional<PreviewShow>& show, std::chrono::minutes shift, const Device& device);
/// An address without what may be secret, as short as it can be understood: the host of a web address, the
/// name of a file.
QString shortAddress(const QString& address);

} // namespace guide

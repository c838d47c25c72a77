#include "screens/sources/SourceTexts.h"

#include "screens/Localized.h"
#include "screens/ShowRows.h"
#include "text/display/LanguageName.h"
#include "text/display/ShortTimeFormat.h"

#include <QCollator>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Those whose shows the guide can classify, or that its feeds are often in.
constexpr std::array kLanguages{
    "ar"_L1, "bg"_L1, "bs"_L1, "cs"_L1, "da"_L1, "de"_L1, "el"_L1, "en"_L1, "es"_L1, "et"_L1, "fi"_L1,
    "fr"_L1, "he"_L1, "hr"_L1, "hu"_L1, "is"_L1, "it"_L1, "lt"_L1, "lv"_L1, "mk"_L1, "nl"_L1, "no"_L1,
    "pl"_L1, "pt"_L1, "ro"_L1, "ru"_L1, "sk"_L1, "sl"_L1, "sq"_L1, "sr"_L1, "sv"_L1, "tr"_L1, "uk"_L1};

/// So many days from today, a weekday tells the day.
constexpr qint64 kNearDays = 6;

QString statusText(const QString& status) {
    const int number = status.toInt();
    if (number == 401 || number == 403) {
        return Localized::tr(
                   "The server denies access (status %1). Check the user name, password or token in "
                   "the address.")
            .arg(status);
    }
    if (number == 404 || number == 410) {
        return Localized::tr(
                   "There is nothing at this address (status %1). Check it, or look for a newer one.")
            .arg(status);
    }
    if (number >= 500) {
        return Localized::tr("The server has a fault (status %1). Try again later.").arg(status);
    }
    return Localized::tr("The server answered with status %1 instead of a schedule. Check the address.")
        .arg(status);
}

} // namespace

QString readingText(int channels, std::int64_t bytes, const QLocale& locale) {
    if (channels == 0 && bytes == 0) {
        return Localized::tr("Waiting for an answer");
    }
    const QString size = locale.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
    return channels == 0 ? Localized::tr("Reading: %1").arg(size)
                         : Localized::tr("Reading: %n channel(s), %1", nullptr, channels).arg(size);
}

QString sourceResultText(SourceResult result, const QString& detail) {
    switch (result) {
    case SourceResult::None:
        return Localized::tr("Not asked yet.");
    case SourceResult::Read:
        return Localized::tr("Everything was read.");
    case SourceResult::Unchanged:
        return Localized::tr("Nothing has changed since it was read.");
    case SourceResult::Incomplete:
        return Localized::tr("It broke off. What came before is used, and it will be tried again.");
    case SourceResult::Poor:
        return Localized::tr(
            "It suddenly has far fewer channels with shows. The shows from before are kept.");
    case SourceResult::Over:
        return Localized::tr("Its last show is over: nobody seems to update it. Look for another source.");
    case SourceResult::NoAnswer:
        return Localized::tr("No answer. Check the address and the network.");
    case SourceResult::Status:
        return statusText(detail);
    case SourceResult::Busy:
        return Localized::tr("The server wants to be asked less often. It will be tried again later.");
    case SourceResult::TooManyRedirects:
        return Localized::tr("The address leads from one address to the next without an end. Check it.");
    case SourceResult::ForbiddenRedirect:
        return Localized::tr("The address leads out of the web (%1), where the guide does not follow.")
            .arg(detail);
    case SourceResult::NoFile:
        return Localized::tr("There is no such file, or it cannot be read. Check the path.");
    case SourceResult::Empty:
        return Localized::tr(
            "It is empty. Some servers answer so when there is nothing at an address; check it.");
    case SourceResult::Page:
        return Localized::tr(
            "This is a page of the web, perhaps one to log in on. Look there for the address "
            "of an XMLTV or M3U file.");
    case SourceResult::Unknown:
        return Localized::tr("This is neither a schedule (XMLTV) nor a playlist (M3U).");
    case SourceResult::Damaged:
        return Localized::tr("It is damaged and cannot be unpacked. Fetch it again.");
    case SourceResult::TooLarge:
        return Localized::tr("It is larger than this device can read. Look for one with fewer channels.");
    case SourceResult::NoRoom:
        return Localized::tr("It cannot be stored: the disk is full or cannot be written.");
    case SourceResult::GrabberNotConfigured:
        return Localized::tr(
            "The program has to be configured first. Run it in a terminal with --configure.");
    case SourceResult::GrabberFailed:
        return detail.isEmpty()
                   ? Localized::tr("The program ended with an error. Run it in a terminal to see why.")
                   : Localized::tr("The program ended with status %1. Run it in a terminal to see why.")
                         .arg(detail);
    case SourceResult::GrabberSilent:
        return Localized::tr("The program was ended because it printed nothing for a long time.");
    case SourceResult::GrabberTooLong:
        return Localized::tr("The program was ended because it ran for too long.");
    case SourceResult::GrabberFlooded:
        return Localized::tr("The program was ended because it printed more than a schedule can be.");
    case SourceResult::SecretMissing:
        return Localized::tr("The password of this address is not on this device. Enter the address again.");
    case SourceResult::Cancelled:
        return Localized::tr("Cancelled.");
    }
    return {};
}

bool isProblem(SourceResult result) {
    return result != SourceResult::None && result != SourceResult::Read &&
           result != SourceResult::Unchanged && result != SourceResult::Cancelled;
}

QString sourceWarningText(SourceWarning warning, const SourcePreview& preview, const Device& device) {
    switch (warning) {
    case SourceWarning::Poor:
        return Localized::tr("Only %1 of %n channel(s) have shows in the next 24 hours.", nullptr,
                             static_cast<int>(preview.channels.size()))
            .arg(device.locale().toString(preview.channelsLive));
    case SourceWarning::Over:
        return preview.last ? Localized::tr("Its last show was on %1.").arg(dayAndTime(*preview.last, device))
                            : Localized::tr("It has no shows.");
    case SourceWarning::Shifted:
        return Localized::tr("The evening news are not in the evening: its times may be shifted.");
    case SourceWarning::Incomplete:
        return Localized::tr("It broke off. What came before can be used.");
    case SourceWarning::Repaired:
        return Localized::tr("Some characters cannot be read and are missing.");
    }
    return {};
}

// ---- shifts and languages

QString shiftText(std::chrono::minutes shift, const QLocale& locale) {
    if (shift == 0min) {
        return Localized::tr("None");
    }
    const auto size = std::chrono::abs(shift);
    const double hours = static_cast<double>(size.count()) / 60;
    const int decimals = size % 60min == 0min ? 0 : size % 30min == 0min ? 1 : 2;
    return Localized::tr("%1 h").arg((shift > 0min ? locale.positiveSign() : u"−"_s) +
                                     locale.toString(hours, 'f', decimals));
}

std::vector<std::chrono::minutes> shiftChoices(std::chrono::minutes current) {
    std::vector<std::chrono::minutes> choices;
    for (std::chrono::minutes shift = -12h; shift <= 14h; shift += 30min) {
        choices.push_back(shift);
    }
    const auto place = std::ranges::lower_bound(choices, current);
    if (place == choices.end() || *place != current) {
        choices.insert(place, current);
    }
    return choices;
}

QString languageText(const QString& language, const QLocale& locale) {
    return language.isEmpty() ? Localized::tr("Unknown") : languageName(language, locale);
}

std::vector<QString> languageChoices(const QString& current, const QLocale& locale) {
    std::vector<std::pair<QString, QString>> named;
    for (const QLatin1StringView code : kLanguages) {
        named.emplace_back(languageName(code, locale), code);
    }
    if (!current.isEmpty() &&
        std::ranges::none_of(kLanguages, [&](QLatin1StringView code) { return code == current; })) {
        named.emplace_back(languageName(current, locale), current);
    }
    const QCollator collator(locale);
    std::ranges::sort(named, [&](const auto& a, const auto& b) { return collator(a.first, b.first); });
    std::vector<QString> codes{QString()};
    for (auto& [name, code] : named) {
        codes.push_back(std::move(code));
    }
    return codes;
}

int servedChannels(const OwnSourceId& feed, const std::vector<OwnSource>& sources) {
    std::ptrdiff_t count = 0;
    for (const OwnSource& source : sources) {
        if (source.id != feed) {
            count += std::ranges::count_if(source.channels, [&feed](const OwnChannel& channel) {
                return channel.guide && channel.guide->source == feed;
            });
        }
    }
    return static_cast<int>(count);
}

// ---- times and addresses

QString timeOfDay(Moment moment, const Device& device) {
    const QLocale locale = device.locale();
    return locale.toString(localTime(device, moment).time(), rowTimeFormat(locale));
}

QString dayAndTime(Moment moment, const Device& device) {
    const QLocale locale = device.locale();
    const QDate date = localTime(device, moment).date();
    return locale.dayName(date.dayOfWeek(), QLocale::ShortFormat) + u' ' +
           locale.toString(date, QLocale::ShortFormat) + u' ' + timeOfDay(moment, device);
}

QString nearDayAndTime(Moment moment, Moment now, const Device& device) {
    const QDate date = localTime(device, moment).date();
    const qint64 days = localTime(device, now).date().daysTo(date);
    return std::abs(days) > kNearDays ? dayAndTime(moment, device)
                                      : device.locale().dayName(date.dayOfWeek(), QLocale::ShortFormat) +
                                            u' ' + timeOfDay(moment, device);
}

QString onNowText(const std::optional<PreviewShow>& show, std::chrono::minutes shift, const Device& device) {
    return show ? timeOfDay(show->start + shift, device) + u' ' + show->title : QString();
}

QString shortAddress(const QString& address) {
    const QUrl url(address);
    if (!url.host().isEmpty()) {
        return url.host();
    }
    const QString name = QFileInfo(address).fileName();
    return name.isEmpty() ? address : name;
}

} // namespace guide

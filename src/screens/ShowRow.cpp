#include "screens/ShowRow.h"

#include "screens/Localized.h"

#include <QStringList>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

std::optional<double> showProgress(const TVEntry& entry, Moment now) {
    if (!entry.dateTime() || !entry.endDateTime() || *entry.endDateTime() <= *entry.dateTime()) {
        return std::nullopt;
    }
    const auto whole = static_cast<double>((*entry.endDateTime() - *entry.dateTime()).count());
    return static_cast<double>((now - *entry.dateTime()).count()) / whole;
}

Row showRow(const ScreenEnvironment& environment, const ShowMarks& marks, const ShowRowText& text,
            const ShowItem& show, bool running, Moment now) {
    const TVEntry& entry = *show.entry();
    const bool alarmed = marks.isAlarmed(entry);
    const bool favourite = marks.isFavourite(entry);

    ColorRole color = ColorRole::SecondaryLabel;
    if (alarmed) {
        color = ColorRole::Alarm;
    } else if (environment.settings.colorizedShows() && (running || favourite)) {
        color = running ? ColorRole::Running : ColorRole::Favourite;
    }

    Row row;
    row.kind = RowKind::Show;
    row.text = text.humanCondensedWithColor(entry, color, environment.popularShows.contains(show));
    row.endTime = text.endTime(entry);
    row.details = text.details(entry);
    if (running) {
        row.progress = std::clamp(showProgress(entry, now).value_or(0), 0.0, 1.0);
    }

    QStringList states;
    if (running) {
        states << Localized::tr("On now");
    }
    if (favourite) {
        states << Localized::tr("Favourite");
    }
    if (alarmed) {
        states << Localized::tr("Alarm set");
    }
    row.spokenState = states.join(", "_L1);
    return row;
}

QDateTime localTime(const Device& device, Moment moment) {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), device.timeZone());
}

std::optional<QUrl> streamURLOf(const CatalogueSnapshot& channels, const ObjectId& channel) {
    const CatalogueChannel* found = channels.find(channel);
    if (!found || !found->stream || found->stream->isEmpty()) {
        return std::nullopt;
    }
    return QUrl(*found->stream);
}

} // namespace guide

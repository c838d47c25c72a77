#include "ui/model/AccessibleName.h"

#include "screens/Localized.h"
#include "text/display/ShortTimeFormat.h"

#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(", "_L1);
}

QString textIf(bool condition, const char* text) {
    return condition ? Localized::tr(text) : QString();
}

QString accessoryName(Accessory accessory) {
    return textIf(accessory == Accessory::Spinner, QT_TRANSLATE_NOOP("Guide", "Loading"));
}

QString percentOf(std::optional<double> fraction, const QLocale& locale) {
    return fraction ? locale.toString(qRound(*fraction * 100)) + locale.percent() : QString();
}

struct Name {
    const QLocale& locale;

    QString operator()(const ShowRow& row) const {
        const QString times = row.endTime.isEmpty() ? row.startTime : row.startTime + u'–' + row.endTime;
        return joined({row.day, times, row.channelName, row.title,
                       textIf(row.running, QT_TRANSLATE_NOOP("Guide", "On now")),
                       textIf(row.favourite, QT_TRANSLATE_NOOP("Guide", "Favourite")),
                       textIf(row.alarmed, QT_TRANSLATE_NOOP("Guide", "Alarm set")), row.alarmLead,
                       textIf(row.popular, QT_TRANSLATE_NOOP("Guide", "Popular")), row.details});
    }
    QString operator()(const ChannelRow& row) const {
        return joined({row.title, textIf(row.checked, QT_TRANSLATE_NOOP("Guide", "Selected")),
                       accessoryName(row.accessory), row.subtitle});
    }
    QString operator()(const TextRow& row) const {
        return joined({row.title, row.detail, textIf(row.checked, QT_TRANSLATE_NOOP("Guide", "Selected")),
                       accessoryName(row.accessory), row.subtitle});
    }
    QString operator()(const SwitchRow& row) const { return joined({row.title, row.subtitle}); }
    QString operator()(const ChoiceRow& row) const {
        const auto chosen = static_cast<std::size_t>(row.chosen.value_or(-1));
        return joined({row.title, chosen < row.choices.size() ? row.choices[chosen] : QString()});
    }
    QString operator()(const TimeRow& row) const { return joined({row.title, shortTime(row.time, locale)}); }
    QString operator()(const InputRow& row) const {
        return joined({row.title.isEmpty() ? row.placeholder : row.title, row.error});
    }
    QString operator()(const ButtonRow& row) const { return row.title; }
    QString operator()(const ProgressRow& row) const {
        return joined({row.title, percentOf(row.fraction, locale)});
    }
    QString operator()(const PictureRow& row) const { return row.description; }
    QString operator()(const HeadRow& row) const { return joined({row.title, row.facts, row.status}); }
    QString operator()(const ActionsRow&) const { return Localized::tr("Actions"); }
    QString operator()(const ParagraphRow& row) const { return row.text; }
    QString operator()(const TileRow& row) const { return joined({row.title, row.detail}); }
    QString operator()(const DayBarRow& row) const { return row.description; }
};

} // namespace

QString accessibleName(const RowContent& content, const QLocale& locale) {
    return std::visit(Name{locale}, content);
}

} // namespace guide

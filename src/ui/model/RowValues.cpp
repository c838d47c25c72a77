#include "ui/model/RowValues.h"

#include "text/display/ShortTimeFormat.h"
#include "ui/look/MarkedText.h"
#include "ui/look/PictureUrl.h"
#include "ui/model/AccessibleName.h"

namespace guide {

RowValue::RowValue(const Row& row, bool isSelected, const QLocale& locale)
    : selectable(row.selectable)
    , selected(isSelected)
    , deletable(row.deletable)
    , movable(row.movable)
    , accessibleName(guide::accessibleName(row.content, locale)) {}

QUrl ShowRowValue::channelIconUrl() const {
    return pictureUrlOf(channelIcon);
}

QUrl ShowRowValue::pictureUrl() const {
    return pictureUrlOf(picture);
}

QString ShowRowValue::markedTitle(const QColor& color) const {
    return markedText(title, titleMatches, color);
}

QString ShowRowValue::markedDetails(const QColor& color) const {
    return markedText(details, detailsMatches, color);
}

QUrl ChannelRowValue::iconUrl() const {
    return pictureUrlOf(icon);
}

QUrl TextRowValue::iconUrl() const {
    return pictureUrlOf(icon);
}

QUrl PictureRowValue::pictureUrl() const {
    return pictureUrlOf(picture);
}

QUrl HeadRowValue::pictureUrl() const {
    return pictureUrlOf(picture);
}

QUrl HeadRowValue::channelIconUrl() const {
    return pictureUrlOf(channelIcon);
}

Glyph::Symbol ActionButtonValue::glyph() const {
    switch (symbol) {
    case ActionSymbol::Favourite:
        return on.value_or(false) ? Glyph::Star : Glyph::StarOutline;
    case ActionSymbol::Alert:
        return Glyph::Bell;
    case ActionSymbol::Play:
        return Glyph::Play;
    case ActionSymbol::Trailer:
        return Glyph::Film;
    case ActionSymbol::Pictures:
        return Glyph::Picture;
    case ActionSymbol::WebPage:
        return Glyph::Globe;
    case ActionSymbol::Broadcasts:
        return Glyph::Schedule;
    case ActionSymbol::PastBroadcasts:
        return Glyph::Past;
    case ActionSymbol::CopyLink:
        return Glyph::Link;
    }
    return Glyph::Play;
}

QList<ActionButtonValue> ActionsRowValue::buttonList() const {
    QList<ActionButtonValue> values;
    for (const ActionButton& button : buttons) {
        values.append({button});
    }
    return values;
}

QList<double> DayBarRowValue::edges() const {
    constexpr double kMinutesOfDay = 24 * 60;
    QList<double> edges;
    for (const Part& part : parts) {
        edges << part.from / kMinutesOfDay << part.to / kMinutesOfDay;
    }
    return edges;
}

QString ChoiceRowValue::chosenText() const {
    const auto index = static_cast<std::size_t>(chosen.value_or(-1));
    return index < choices.size() ? choices[index] : QString();
}

namespace {

struct Make {
    const Row& row;
    bool selected;
    const QLocale& locale;

    QVariant operator()(const ShowRow& content) const { return made<ShowRowValue>(content); }
    QVariant operator()(const ChannelRow& content) const { return made<ChannelRowValue>(content); }
    QVariant operator()(const TextRow& content) const { return made<TextRowValue>(content); }
    QVariant operator()(const SwitchRow& content) const { return made<SwitchRowValue>(content); }
    QVariant operator()(const ChoiceRow& content) const { return made<ChoiceRowValue>(content); }
    QVariant operator()(const TimeRow& content) const {
        return made<TimeRowValue>(content, shortTime(content.time, locale));
    }
    QVariant operator()(const InputRow& content) const { return made<InputRowValue>(content); }
    QVariant operator()(const ButtonRow& content) const { return made<ButtonRowValue>(content); }
    QVariant operator()(const ProgressRow& content) const { return made<ProgressRowValue>(content); }
    QVariant operator()(const PictureRow& content) const { return made<PictureRowValue>(content); }
    QVariant operator()(const HeadRow& content) const { return made<HeadRowValue>(content); }
    QVariant operator()(const ActionsRow& content) const { return made<ActionsRowValue>(content); }
    QVariant operator()(const ParagraphRow& content) const { return made<ParagraphRowValue>(content); }
    QVariant operator()(const TileRow& content) const { return made<TileRowValue>(content); }
    QVariant operator()(const DayBarRow& content) const { return made<DayBarRowValue>(content); }

  private:
    template <class Value, class... Fields>
    QVariant made(Fields... fields) const {
        return QVariant::fromValue(Value{{row, selected, locale}, std::move(fields)...});
    }
};

} // namespace

QVariant rowValue(const Row& row, bool selected, const QLocale& locale) {
    return std::visit(Make{row, selected, locale}, row.content);
}

} // namespace guide

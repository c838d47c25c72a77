#include "ui/model/RowValues.h"

#include "ui/look/PictureUrl.h"
#include "ui/model/AccessibleName.h"

#include <QLocale>

namespace guide {

RowValue::RowValue(const Row& row, bool isSelected)
    : selectable(row.selectable)
    , selected(isSelected)
    , deletable(row.deletable)
    , movable(row.movable)
    , accessibleName(guide::accessibleName(row.content)) {}

QUrl ShowRowValue::channelIconUrl() const {
    return pictureUrlOf(channelIcon);
}

QUrl ShowRowValue::pictureUrl() const {
    return pictureUrlOf(picture);
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

QString ChoiceRowValue::chosenText() const {
    const auto index = static_cast<std::size_t>(chosen.value_or(-1));
    return index < choices.size() ? choices[index] : QString();
}

QString TimeRowValue::timeText() const {
    return shortTime(time);
}

namespace {

template <class Value, class Content>
QVariant made(const Row& row, bool selected, const Content& content) {
    return QVariant::fromValue(Value{{row, selected}, content});
}

struct Make {
    const Row& row;
    bool selected;

    QVariant operator()(const ShowRow& content) const { return made<ShowRowValue>(row, selected, content); }
    QVariant operator()(const ChannelRow& content) const {
        return made<ChannelRowValue>(row, selected, content);
    }
    QVariant operator()(const TextRow& content) const { return made<TextRowValue>(row, selected, content); }
    QVariant operator()(const SwitchRow& content) const {
        return made<SwitchRowValue>(row, selected, content);
    }
    QVariant operator()(const ChoiceRow& content) const {
        return made<ChoiceRowValue>(row, selected, content);
    }
    QVariant operator()(const TimeRow& content) const { return made<TimeRowValue>(row, selected, content); }
    QVariant operator()(const InputRow& content) const { return made<InputRowValue>(row, selected, content); }
    QVariant operator()(const ButtonRow& content) const {
        return made<ButtonRowValue>(row, selected, content);
    }
    QVariant operator()(const ProgressRow& content) const {
        return made<ProgressRowValue>(row, selected, content);
    }
    QVariant operator()(const PictureRow& content) const {
        return made<PictureRowValue>(row, selected, content);
    }
};

} // namespace

QVariant rowValue(const Row& row, bool selected) {
    return std::visit(Make{row, selected}, row.content);
}

} // namespace guide

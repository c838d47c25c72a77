#include "platform/linux/KeyValueJson.h"

#include <QCborArray>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <cmath>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kKey = "key"_L1;
constexpr auto kValue = "value"_L1;
constexpr auto kStamp = "stamp"_L1;
constexpr auto kCounter = "counter"_L1;
constexpr auto kDevice = "device"_L1;
constexpr auto kBytes = "bytes"_L1;
constexpr auto kDate = "date"_L1;
constexpr auto kDouble = "double"_L1;
constexpr int kDeepestArray = 16;

std::optional<QJsonValue> toJson(const QCborValue& value, int depth) {
    switch (value.type()) {
    case QCborValue::False:
    case QCborValue::True:
        return QJsonValue(value.toBool());
    case QCborValue::Integer:
        return QJsonValue(value.toInteger());
    case QCborValue::String:
        return QJsonValue(value.toString());
    case QCborValue::Double: {
        const double number = value.toDouble();
        // A whole number would be read back as an integer.
        if (std::isfinite(number) && number != std::trunc(number)) {
            return QJsonValue(number);
        }
        return QJsonObject{{kDouble, QString::number(number, 'g', QLocale::FloatingPointShortest)}};
    }
    case QCborValue::ByteArray:
        return QJsonObject{{kBytes, QString::fromLatin1(value.toByteArray().toHex())}};
    case QCborValue::DateTime: {
        const QDateTime date = value.toDateTime();
        if (!date.isValid()) {
            return std::nullopt;
        }
        return QJsonObject{{kDate, date.toUTC().toString(Qt::ISODateWithMs)}};
    }
    case QCborValue::Array: {
        if (depth == kDeepestArray) {
            return std::nullopt;
        }
        QJsonArray array;
        const QCborArray values = value.toArray();
        for (const auto& element : values) {
            const std::optional<QJsonValue> read = toJson(element, depth + 1);
            if (!read) {
                return std::nullopt;
            }
            array.append(*read);
        }
        return array;
    }
    default:
        return std::nullopt;
    }
}

std::optional<QCborValue> fromObject(const QJsonObject& object) {
    if (object.size() != 1 || !object.begin()->isString()) {
        return std::nullopt;
    }
    const QString kind = object.begin().key();
    const QString text = object.begin()->toString();
    if (kind == kBytes) {
        const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
        // fromHex skips other characters, which changes the length.
        return bytes.size() * 2 == text.size() ? std::optional<QCborValue>(bytes) : std::nullopt;
    }
    if (kind == kDate) {
        const QDateTime date = QDateTime::fromString(text, Qt::ISODateWithMs);
        return date.isValid() ? std::optional<QCborValue>(date) : std::nullopt;
    }
    if (kind == kDouble) {
        bool read = false;
        const double number = text.toDouble(&read);
        return read ? std::optional<QCborValue>(number) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QCborValue> fromJson(const QJsonValue& json, int depth) {
    switch (json.type()) {
    case QJsonValue::Bool:
        return QCborValue(json.toBool());
    case QJsonValue::String:
        return QCborValue(json.toString());
    case QJsonValue::Double:
        return QCborValue::fromJsonValue(json);
    case QJsonValue::Object:
        return fromObject(json.toObject());
    case QJsonValue::Array: {
        if (depth == kDeepestArray) {
            return std::nullopt;
        }
        QCborArray array;
        const QJsonArray values = json.toArray();
        for (const auto& element : values) {
            const std::optional<QCborValue> read = fromJson(element, depth + 1);
            if (!read) {
                return std::nullopt;
            }
            array.append(*read);
        }
        return QCborValue(array);
    }
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QByteArray> keyValueJson(const KeyValue& keyValue) {
    const std::optional<QJsonValue> json = toJson(keyValue.value, 0);
    if (!json) {
        return std::nullopt;
    }
    QJsonObject object{{kKey, keyValue.key}, {kValue, *json}};
    if (keyValue.stamp.counter > 0) {
        object.insert(kStamp, QJsonObject{{kCounter, qint64(keyValue.stamp.counter)},
                                          {kDevice, keyValue.stamp.device}});
    }
    return QJsonDocument(object).toJson();
}

std::optional<KeyValue> keyValueFromJson(const QByteArray& json) {
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (!object.value(kKey).isString() || !object.contains(kValue)) {
        return std::nullopt;
    }
    std::optional<QCborValue> value = fromJson(object.value(kValue), 0);
    if (!value) {
        return std::nullopt;
    }
    const QJsonObject stamp = object.value(kStamp).toObject();
    const std::int64_t counter = stamp.value(kCounter).toInteger();
    KeyValue keyValue{.key = object.value(kKey).toString(), .value = *std::move(value)};
    if (counter > 0 && counter <= kLargestCounter) {
        keyValue.stamp = {.counter = counter, .device = stamp.value(kDevice).toString()};
    }
    return keyValue;
}

} // namespace guide

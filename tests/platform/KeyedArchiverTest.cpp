#include "platform/archive/KeyedArchiver.h"

#include "platform/archive/Archive.h"
#include "platform/archive/ArchiveContainer.h"

#include <QCborArray>
#include <QCborMap>
#include <QDateTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

using Id = std::array<std::uint8_t, 12>;

/// A record with a field of every type, after one with the same text in "source".
QByteArray someRecords() {
    KeyedArchiver out;
    out.beginArray(2);
    out.beginRecord();
    out.encode("source", u"feed"_s);
    out.endRecord();
    out.beginRecord();
    out.encode("previouslyShown", true);
    out.key("unknown");
    out.beginArray(2);
    out.append(u"inside");
    out.beginRecord();
    out.encode("title", u"not this one"_s);
    out.endRecord();
    out.encode("source", u"feed"_s);
    out.encode("title", std::optional(u"Večerní zprávy 📺"_s));
    out.encode("subtitle", std::optional<QString>());
    out.encode("dateTime", Moment(std::chrono::milliseconds(-5)));
    out.encode("url", QUrl(u"http://a.example/č?x=1"_s));
    out.encode("categories", 0xffff'ffffU);
    out.encode("channel", Id{7, 255});
    out.encode("short", QByteArray("eleven byte"));
    out.endRecord();
    return std::move(out).finish();
}

TEST(KeyedArchiverTest, ReadsFieldsInAnyOrder) {
    const QByteArray archive = someRecords();
    KeyedUnarchiver in(archive);
    RepeatedText source;
    Id channel{};
    Id unchanged{1, 2, 3};
    std::optional<QString> title;
    std::optional<QString> subtitle;
    std::optional<Moment> start;
    std::optional<QUrl> url;
    std::uint32_t categories = 0;
    bool repeated = false;
    EXPECT_EQ(in.array(), 2U);
    in.record(field("source", source));
    const QString first = source.text;
    in.record(field("channel", channel), field("short", unchanged), field("source", source),
              field("title", title), field("subtitle", subtitle), field("dateTime", start), field("url", url),
              field("categories", categories), field("previouslyShown", repeated));
    EXPECT_TRUE(in.finished());
    EXPECT_EQ(first, u"feed"_s);
    EXPECT_EQ(source.text.constData(), first.constData()) << "repeated texts share a string";
    EXPECT_EQ(title, u"Večerní zprávy 📺"_s);
    EXPECT_EQ(subtitle, std::nullopt);
    EXPECT_EQ(start, Moment(std::chrono::milliseconds(-5)));
    EXPECT_EQ(url, QUrl(u"http://a.example/č?x=1"_s));
    EXPECT_EQ(categories, 0xffff'ffffU);
    EXPECT_EQ(channel, (Id{7, 255}));
    EXPECT_EQ(unchanged, (Id{1, 2, 3})) << "the length differs";
    EXPECT_TRUE(repeated);
}

template <class T>
void readValue(KeyedUnarchiver& in) {
    T value{};
    in.decode(value);
}

TEST(KeyedArchiverTest, FailsOnValuesOfAnotherKind) {
    const auto readArray = [](KeyedUnarchiver& in) { EXPECT_EQ(in.array(), 0U); };
    const auto readRecord = [](KeyedUnarchiver& in) {
        bool flag;
        in.record(field("a", flag));
    };
    const struct {
        const char* name;
        QCborValue value;
        void (*read)(KeyedUnarchiver&);
    } cases[] = {
        {"number for text", 5, readValue<QString>},
        {"bytes for text", QByteArray("text"), readValue<QString>},
        {"text for number", u"5"_s, readValue<std::uint32_t>},
        {"negative for unsigned", -1, readValue<std::uint32_t>},
        {"more than 32 bits", qint64{0x1'0000'0000}, readValue<std::uint32_t>},
        {"number for flag", 1, readValue<bool>},
        {"null for flag", nullptr, readValue<bool>},
        {"record for array", QCborMap{}, readArray},
        {"array for record", QCborArray{}, readRecord},
        {"text under a flag's key", QCborMap{{u"a"_s, u"true"_s}}, readRecord},
    };
    for (const auto& each : cases) {
        const QByteArray archive = archivedData(each.value);
        KeyedUnarchiver in(archive);
        each.read(in);
        EXPECT_TRUE(in.failed()) << each.name;
    }
    // Declared lengths without content, and endless nesting.
    for (const char* content :
         {"9bffffffffffffffff", "bbffffffffffffffff", "7bffffffffffffffff61", "8181818181"}) {
        QByteArray archive = QByteArray(kArchiveHeaderSize, '\0') + QByteArray::fromHex(content);
        sealArchive(archive);
        KeyedUnarchiver in(archive);
        in.skip();
        EXPECT_TRUE(in.failed()) << content;
    }
}

TEST(KeyedArchiverTest, AgreesWithQtOnEveryWidth) {
    const QString letters = u"aéж中📺"_s + QChar(0);
    KeyedArchiver out;
    QCborArray expected;
    out.beginArray(56);
    constexpr qint64 kNumbers[] = {0,      23,     24,          255,           256,
                                   65'535, 65'536, 0xffff'ffff, 0x1'0000'0000, INT64_MAX};
    for (const qint64 number : kNumbers) {
        for (const qint64 either : {number, -1 - number}) {
            out.append(std::int64_t{either});
            expected.append(either);
        }
    }
    for (const int size : {0, 23, 24, 255, 256, 65'535, 65'536}) {
        const QByteArray bytes(size, '\xff');
        QCborArray flags;
        out.append(bytes);
        expected.append(bytes);
        for (const QString& text : {QString(size, u'a'), QString(size / 2, u'é'), QString(size / 3, u'中')}) {
            out.append(text);
            expected.append(text);
        }
        out.beginArray(std::size_t(size));
        for (int i = 0; i < size; ++i) {
            out.append(i % 3 == 0);
            flags.append(i % 3 == 0);
        }
        expected.append(flags);
    }
    out.beginRecord();
    for (int pair = 0; pair < 30; ++pair) {
        out.encode("key", letters);
    }
    out.endRecord();
    const QByteArray archive = std::move(out).finish();
    const std::optional<QCborValue> byQt = unarchivedRoot(archive);
    ASSERT_TRUE(byQt);
    QCborArray elements = byQt->toArray();
    EXPECT_EQ(elements.takeLast().toMap().size(), 30);
    EXPECT_TRUE(elements == expected);

    KeyedUnarchiver in(archive);
    const auto next = [&in](auto value) {
        in.decode(value);
        return value;
    };
    EXPECT_EQ(in.array(), std::size_t(expected.size()) + 1);
    for (const QCborValue element : std::as_const(expected)) {
        if (element.isInteger()) {
            EXPECT_EQ(next(std::int64_t()), element.toInteger());
        } else if (element.isByteArray()) {
            EXPECT_EQ(next(QByteArray()), element.toByteArray());
        } else if (element.isString()) {
            EXPECT_EQ(next(QString()), element.toString());
        } else if (element.isArray()) {
            const QCborArray flags = element.toArray();
            EXPECT_EQ(in.array(), std::size_t(flags.size()));
            for (const QCborValue flag : flags) {
                EXPECT_EQ(next(false), flag.toBool());
            }
        }
    }
    QString last;
    in.record(field("key", last));
    EXPECT_EQ(last, letters);
    EXPECT_TRUE(in.finished());
    KeyedUnarchiver passing(archive);
    passing.skip();
    EXPECT_TRUE(passing.finished());
}

TEST(KeyedArchiverTest, RefusesEveryTruncationAndBitFlip) {
    const QByteArray archive = someRecords();
    const auto isRefused = [](const QByteArray& damaged) {
        return KeyedUnarchiver(damaged).failed() && !unarchivedRoot(damaged);
    };
    for (qsizetype size = 0; size < archive.size(); ++size) {
        ASSERT_TRUE(isRefused(archive.left(size))) << size;
    }
    for (qsizetype bit = 0; bit < archive.size() * 8; ++bit) {
        QByteArray damaged = archive;
        damaged[bit / 8] = static_cast<char>(damaged.at(bit / 8) ^ 1 << bit % 8);
        ASSERT_TRUE(isRefused(damaged)) << bit;
    }
    EXPECT_TRUE(isRefused(archive + '\0'));
    QByteArray noContent(kArchiveHeaderSize, '\0');
    sealArchive(noContent);
    EXPECT_EQ(archiveContent(noContent), QByteArrayView("")) << "a header is whole without content";
}

TEST(Archive, ContainersHaveAsManyElementsAsTheySay) {
    const auto read = [](QByteArray content) {
        content.prepend(QByteArray(static_cast<qsizetype>(kArchiveHeaderSize), '\0'));
        sealArchive(content);
        return unarchivedRoot(content);
    };
    EXPECT_TRUE(read(QByteArray::fromHex("82c10580")));
    EXPECT_FALSE(read(QByteArray::fromHex("9a00ffffff01"))) << "16 million elements in a byte";
    EXPECT_FALSE(read("\xc1" + QByteArray::fromHex("9a00ffffff01"))) << "behind a tag";
    EXPECT_FALSE(read(QByteArray(100, '\x81') + '\x01')) << "too deep";
    EXPECT_TRUE(read(QByteArray(60, '\x81') + '\x01'));
    const QCborMap dates{{1, QCborValue(QDateTime::fromMSecsSinceEpoch(5, Qt::UTC))}};
    EXPECT_EQ(unarchivedRoot(archivedData(dates)), QCborValue(dates));
}

} // namespace
} // namespace guide

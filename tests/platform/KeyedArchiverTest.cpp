#include "platform/archive/KeyedArchiver.h"

#include "platform/archive/Archive.h"
#include "platform/archive/ArchiveContainer.h"

#include <QCborArray>
#include <QCborMap>

#include <gtest/gtest.h>
#include <random>

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
    struct Case {
        const char* name;
        QCborValue value;
        void (*read)(KeyedUnarchiver&);
    };
    const auto readArray = [](KeyedUnarchiver& in) { EXPECT_EQ(in.array(), 0U); };
    const auto readRecord = [](KeyedUnarchiver& in) {
        bool flag;
        in.record(field("a", flag));
    };
    const std::vector<Case> cases{
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
    for (const Case& each : cases) {
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

/// Writes a random tree with the archiver and builds the same tree as Qt's value.
class Tree {
  public:
    explicit Tree(unsigned seed)
        : m_random(seed) {}

    QCborValue write(KeyedArchiver& out, int depth) {
        const auto both = [&out](const auto& value) {
            out.append(value);
            return QCborValue(value);
        };
        switch (below(depth > 0 ? 7 : 5)) {
        case 0: {
            const auto number = static_cast<qint64>(m_random() << below(64));
            out.append(std::int64_t{number});
            return number;
        }
        case 1:
            return both(randomText());
        case 2:
            return both(randomText().toUtf8());
        case 3:
            return both(below(2) == 0);
        case 4: {
            const auto number = static_cast<std::uint32_t>(m_random());
            out.append(number);
            return qint64{number};
        }
        case 5: {
            const std::size_t count = below(40);
            QCborArray array;
            out.beginArray(count);
            for (std::size_t index = 0; index < count; ++index) {
                array.append(write(out, depth - 1));
            }
            return array;
        }
        default: {
            QCborMap map;
            out.beginRecord();
            const std::size_t pairs = below(6) == 0 ? 30 : 3;
            for (std::size_t index = 0; index < pairs; ++index) {
                out.key("key");
                map.insert(u"key"_s, write(out, depth - 1));
            }
            out.endRecord();
            return map;
        }
        }
    }

  private:
    std::size_t below(std::size_t bound) { return m_random() % bound; }
    QString randomText() {
        static const std::array<char32_t, 6> kCharacters{U'a', U'é', U'ж', U'中', U'📺', U'\0'};
        QString text;
        const std::size_t length = below(5) == 0 ? below(400) : below(30);
        for (std::size_t index = 0; index < length; ++index) {
            const char32_t character = kCharacters[below(3) == 0 ? below(6) : 0];
            text.append(QString::fromUcs4(&character, 1));
        }
        return text;
    }

    std::mt19937_64 m_random;
};

QCborValue readTree(KeyedUnarchiver& in, int depth = 20) {
    using Kind = KeyedUnarchiver::Kind;
    const auto decoded = [&in](auto value) {
        in.decode(value);
        return value;
    };
    switch (depth > 0 ? in.kind() : Kind::Other) {
    case Kind::Integer:
        return qint64{decoded(std::int64_t())};
    case Kind::Text:
        return decoded(QString());
    case Kind::Bytes:
        return decoded(QByteArray());
    case Kind::Bool:
        return decoded(false);
    case Kind::Array: {
        QCborArray array;
        const std::size_t count = in.array();
        for (std::size_t index = 0; index < count && !in.failed(); ++index) {
            array.append(readTree(in, depth - 1));
        }
        return array;
    }
    case Kind::Record: {
        QCborMap map;
        const auto readKey = [&](KeyedUnarchiver& at) { map.insert(u"key"_s, readTree(at, depth - 1)); };
        in.record(field("key", readKey));
        return map;
    }
    default:
        in.skip();
        return {};
    }
}

TEST(KeyedArchiverTest, AgreesWithQtOnRandomTrees) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        KeyedArchiver out;
        const QCborValue expected = Tree(seed).write(out, 3);
        const QByteArray archive = std::move(out).finish();
        const std::optional<QCborValue> byQt = unarchivedRoot(archive);
        ASSERT_TRUE(byQt) << seed;

        KeyedUnarchiver in(archive);
        const QCborValue ours = readTree(in);
        ASSERT_TRUE(in.finished()) << seed;
        EXPECT_EQ(ours, expected) << seed;

        KeyedUnarchiver passing(archive);
        passing.skip();
        EXPECT_TRUE(passing.finished()) << seed;
    }
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

} // namespace
} // namespace guide

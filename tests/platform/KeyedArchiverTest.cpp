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

struct Show {
    Id channel{};
    std::optional<QString> source;
    std::optional<QString> title;
    std::optional<Moment> start;
    std::optional<QUrl> url;
    bool repeated = false;
    std::uint32_t categories = 0;

    friend bool operator==(const Show&, const Show&) = default;
};

std::vector<Show> someShows() {
    const Moment start(std::chrono::milliseconds(1'767'200'400'123));
    std::vector<Show> shows(3);
    shows[0] = {{1, 2, 3, 255, 0, 5},
                u"feed"_s,
                u"Večerní zprávy – živě 📺"_s,
                start,
                QUrl(u"http://a.example/č?x=1"_s),
                true,
                0xffff'ffff};
    shows[1] = {{}, u"feed"_s, u""_s, Moment(std::chrono::milliseconds(-5)), std::nullopt, false, 0};
    shows[2] = {{9}, std::nullopt, u"a\0b"_s, std::nullopt, std::nullopt, false, 24};
    return shows;
}

QByteArray archiveOf(const std::vector<Show>& shows) {
    KeyedArchiver out;
    out.beginArray(shows.size());
    for (const Show& show : shows) {
        out.beginArray(2);
        out.beginRecord();
        out.encode("channel", show.channel);
        out.encode("source", show.source);
        out.encode("title", show.title);
        out.encode("dateTime", show.start);
        out.encode("url", show.url);
        out.encode("previouslyShown", show.repeated);
        out.endRecord();
        out.append(show.categories);
    }
    return std::move(out).finish();
}

std::vector<Show> readShows(KeyedUnarchiver& in) {
    std::vector<Show> shows;
    RepeatedText source;
    const std::size_t count = in.array();
    shows.reserve(count);
    for (std::size_t index = 0; index < count && !in.failed(); ++index) {
        Show& show = shows.emplace_back();
        in.array();
        const auto readSource = [&](KeyedUnarchiver& at) {
            at.decode(source);
            show.source = source.text;
        };
        in.record(field("channel", show.channel), field("source", readSource), field("title", show.title),
                  field("dateTime", show.start), field("url", show.url),
                  field("previouslyShown", show.repeated));
        in.decode(show.categories);
    }
    return shows;
}

TEST(KeyedArchiverTest, ReadsWhatWasWritten) {
    const QByteArray archive = archiveOf(someShows());
    KeyedUnarchiver in(archive);
    const std::vector<Show> read = readShows(in);
    EXPECT_EQ(read, someShows());
    EXPECT_TRUE(in.finished());
    EXPECT_EQ(read[0].source->constData(), read[1].source->constData()) << "repeated texts share a string";
}

TEST(KeyedArchiverTest, FieldsMayBeInAnyOrderUnknownOrOfAnotherLength) {
    KeyedArchiver out;
    out.beginRecord();
    out.encode("previouslyShown", true);
    out.key("unknown");
    out.beginArray(2);
    out.append(u"inside");
    out.beginRecord();
    out.encode("title", u"not this one"_s);
    out.endRecord();
    out.encode("title", u"Title"_s);
    out.encode("later", -1);
    out.encode("channel", Id{7});
    out.encode("short", QByteArray("eleven byte"));
    out.endRecord();
    const QByteArray archive = std::move(out).finish();

    Show show;
    Id unchanged{1, 2, 3};
    KeyedUnarchiver in(archive);
    in.record(field("channel", show.channel), field("source", show.source), field("title", show.title),
              field("previouslyShown", show.repeated), field("short", unchanged));
    EXPECT_TRUE(in.finished());
    EXPECT_EQ(unchanged, (Id{1, 2, 3})) << "bytes of another length";
    EXPECT_EQ(show, (Show{Id{7}, std::nullopt, u"Title"_s, std::nullopt, std::nullopt, true, 0}));
}

TEST(KeyedArchiverTest, FailsOnValuesOfAnotherKind) {
    struct Case {
        const char* name;
        QCborValue value;
        void (*read)(KeyedUnarchiver&);
    };
    const auto readText = [](KeyedUnarchiver& in) {
        QString text;
        in.decode(text);
    };
    const auto readNumber = [](KeyedUnarchiver& in) {
        std::uint32_t number;
        in.decode(number);
    };
    const auto readBool = [](KeyedUnarchiver& in) {
        bool flag;
        in.decode(flag);
    };
    const auto readArray = [](KeyedUnarchiver& in) { EXPECT_EQ(in.array(), 0U); };
    const auto readRecord = [](KeyedUnarchiver& in) {
        bool flag;
        in.record(field("a", flag));
    };
    const std::vector<Case> cases{
        {"number for text", 5, readText},
        {"bytes for text", QByteArray("text"), readText},
        {"text for number", u"5"_s, readNumber},
        {"negative for unsigned", -1, readNumber},
        {"past 32 bits", qint64{0x1'0000'0000}, readNumber},
        {"number for flag", 1, readBool},
        {"null for flag", nullptr, readBool},
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
}

/// Writes a random tree with the archiver and builds the same tree as Qt's value.
class Tree {
  public:
    explicit Tree(unsigned seed)
        : m_random(seed) {}

    QCborValue write(KeyedArchiver& out, int depth) {
        switch (below(depth > 0 ? 7 : 5)) {
        case 0: {
            const std::uint64_t bits = m_random() << below(64);
            const auto number = static_cast<qint64>(bits);
            out.append(std::int64_t{number});
            return number;
        }
        case 1: {
            const QString text = randomText();
            out.append(text);
            return text;
        }
        case 2: {
            const QByteArray bytes = randomText().toUtf8();
            out.append(bytes);
            return bytes;
        }
        case 3: {
            const bool flag = below(2) == 0;
            out.append(flag);
            return flag;
        }
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
    switch (depth > 0 ? in.kind() : Kind::Other) {
    case Kind::Integer: {
        std::int64_t number = 0;
        in.decode(number);
        return qint64{number};
    }
    case Kind::Text: {
        QString text;
        in.decode(text);
        return text;
    }
    case Kind::Bytes: {
        QByteArray bytes;
        in.decode(bytes);
        return bytes;
    }
    case Kind::Bool: {
        bool flag = false;
        in.decode(flag);
        return flag;
    }
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
    const QByteArray archive = archiveOf(someShows());
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
}

TEST(KeyedArchiverTest, NeverReadsOutsideDamagedContent) {
    const QByteArray content = archiveOf(someShows()).mid(kArchiveHeaderSize);
    const auto read = [](const QByteArray& damagedContent) {
        QByteArray archive = QByteArray(kArchiveHeaderSize, '\0') + damagedContent;
        sealArchive(archive);
        // An exact copy, so that the sanitizer detects reads past its end.
        const std::vector<char> exact(archive.begin(), archive.end());
        const QByteArrayView view(exact.data(), static_cast<qsizetype>(exact.size()));
        KeyedUnarchiver asShows(view);
        EXPECT_LE(readShows(asShows).size(), exact.size());
        KeyedUnarchiver asTree(view);
        readTree(asTree);
        KeyedUnarchiver passing(view);
        passing.skip();
    };
    for (qsizetype size = 0; size < content.size(); ++size) {
        read(content.left(size));
    }
    std::mt19937 random(1);
    for (int round = 0; round < 4000; ++round) {
        QByteArray damaged = content;
        for (unsigned change = 0; change <= random() % 3; ++change) {
            damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(random());
        }
        read(damaged);
    }
    // Declared lengths without content.
    read(QByteArray::fromHex("9bffffffffffffffff"));
    read(QByteArray::fromHex("bbffffffffffffffff"));
    read(QByteArray::fromHex("7bffffffffffffffff61"));
    read(QByteArray(100'000, '\x81'));
}

} // namespace
} // namespace guide

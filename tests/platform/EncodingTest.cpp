#include "platform/encoding/CharacterSets.h"
#include "platform/encoding/Utf8.h"

#include <QStringDecoder>

#include <gtest/gtest.h>
#include <random>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(CharacterSetsTest, DecodesStrictlyByName) {
    const std::tuple<const char*, QByteArray, QString, std::optional<QString>> cases[] = {
        {"upper-case", "\x8a\xe8", u"WINDOWS-1250"_s, u"Šč"_s},
        {"lower-case", "\x8a\xe8", u"windows-1250"_s, u"Šč"_s},
        {"Cyrillic", "\xcf\xf0\xe8", u"WINDOWS-1251"_s, u"При"_s},
        {"Latin-2", "\xa9\xe8", u"ISO-8859-2"_s, u"Šč"_s},
        {"Latin-10", "\xaa\xde", u"ISO-8859-16"_s, u"ȘȚ"_s},
        {"Latin-1 by alias", "\xe9", u"latin1"_s, u"é"_s},
        {"KOI8-R", "\xf0", u"KOI8-R"_s, u"П"_s},
        {"Shift_JIS", "\x93\xfa", u"SHIFT_JIS"_s, u"日"_s},
        {"big-endian UTF-16", QByteArray("\xfe\xff\0A", 4), u"UTF-16"_s, u"A"_s},
        {"little-endian UTF-16", QByteArray("\xff\xfe\x41\0", 4), u"UTF-16"_s, u"A"_s},
        {"UTF-8", "\xc4\x8d", u"UTF-8"_s, u"č"_s},
        {"surrounding blanks", "\xc4\x8d", u" utf-8 "_s, u"č"_s},
        {"NUL", QByteArray("a\0b", 3), u"WINDOWS-1250"_s, u"a\0b"_s},
        {"empty body", "", u"UTF-8"_s, u""_s},
        {"broken UTF-8", "abc\xe9", u"UTF-8"_s, std::nullopt},
        {"broken UTF-16", QByteArray("\xfe\xff\xd8\x00\0A", 6), u"UTF-16"_s, std::nullopt},
        {"truncated character", "\x93", u"SHIFT_JIS"_s, std::nullopt},
        {"undefined byte", "\xa1\xff", u"ISO-8859-7"_s, std::nullopt},
        {"not ASCII", "\xe9", u"US-ASCII"_s, std::nullopt},
        {"unknown name", "abc", u"KLINGON-1"_s, std::nullopt},
        {"empty name", "abc", u""_s, std::nullopt},
        {"only punctuation", "abc", u"\"\""_s, std::nullopt},
        {"converter options", "abc", u"ISO-2022,version=1"_s, std::nullopt},
        {"letters of another script", "abc", u"УТФ-8"_s, std::nullopt},
    };
    for (const auto& [name, bytes, characterSet, expected] : cases) {
        const std::optional<QByteArray> page = utf8FromCharacterSet(bytes, characterSet);
        EXPECT_EQ(page ? std::optional(QString::fromUtf8(*page)) : std::nullopt, expected) << name;
    }
}

TEST(CharacterSetsTest, ConvertsPagesLongerThanItsBuffers) {
    const QByteArray bytes = QByteArray("\xe8\xa9 abc ").repeated(50'000);
    const std::optional<QByteArray> page = utf8FromCharacterSet(bytes, u"iso-8859-2"_s);
    ASSERT_TRUE(page);
    EXPECT_EQ(*page, u"čŠ abc "_s.toUtf8().repeated(50'000));
}

TEST(CharacterSetsTest, DoesNotCopyUTF8) {
    const QByteArray bytes = "\xef\xbb\xbf<tv/>";
    const std::optional<QByteArray> page = utf8FromCharacterSet(bytes, u"utf8"_s);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->constData(), bytes.constData());
}

TEST(Utf8Test, AcceptsOnlyWellFormedBytesAtEveryOffset) {
    const std::tuple<const char*, QByteArray, bool> cases[] = {
        {"two bytes", "\xc4\x8d", true},
        {"three bytes", "\xe2\x80\x93", true},
        {"four bytes", "\xf0\x9f\x93\xba", true},
        {"the last character", "\xf4\x8f\xbf\xbf", true},
        {"a noncharacter", "\xef\xbf\xbf", true},
        {"NUL", QByteArray("\0", 1), true},
        {"byte order mark", "\xef\xbb\xbf", true},
        {"replacement character", "\xef\xbf\xbd", true},
        {"lone continuation", "\x80", false},
        {"overlong slash", "\xc0\xaf", false},
        {"overlong two-byte form", "\xc1\xbf", false},
        {"overlong three-byte form", "\xe0\x9f\xbf", false},
        {"overlong four-byte form", "\xf0\x8f\xbf\xbf", false},
        {"high surrogate", "\xed\xa0\x80", false},
        {"low surrogate", "\xed\xbf\xbf", false},
        {"above the last character", "\xf4\x90\x80\x80", false},
        {"invalid byte", "\xf5\x80\x80\x80", false},
        {"truncated after one byte", "\xc4", false},
        {"truncated after two bytes", "\xe2\x80", false},
        {"truncated after three bytes", "\xf0\x9f\x93", false},
        {"interrupted by ASCII", "\xe2\x80 x", false},
        {"Latin-1", "\xe9t\xe9", false},
    };
    for (const auto& [name, bytes, valid] : cases) {
        for (const qsizetype before : {0, 1, 7, 8, 15, 16, 17, 40, 60, 61, 62, 63, 64, 127}) {
            for (const qsizetype after : {0, 1, 20, 80}) {
                const QByteArray padded = QByteArray(before, 'a') + bytes + QByteArray(after, 'z');
                QString text;
                EXPECT_EQ(isValidUtf8(padded), valid) << name << before << ' ' << after;
                EXPECT_EQ(readUtf8(padded, text), valid) << name << before << ' ' << after;
                if (valid) {
                    EXPECT_EQ(text, QString::fromUtf8("." + padded).mid(1)) << name << before << ' ' << after;
                }
            }
        }
    }
}

TEST(Utf8Test, AgreesWithQtOnDamagedText) {
    const QByteArray whole =
        u"Večerní zprávy – živě 📺 Вечер 日本 abcdefghijklmnopqrstuvwxyz"_s.toUtf8().repeated(4);
    std::mt19937 random(3);
    int valid = 0;
    for (int round = 0; round < 20'000; ++round) {
        QByteArray bytes =
            whole.mid(static_cast<qsizetype>(random() % 40), static_cast<qsizetype>(random() % 200));
        for (unsigned change = random() % 3; change > 0 && !bytes.isEmpty(); --change) {
            bytes[static_cast<qsizetype>(random()) % bytes.size()] = static_cast<char>(random());
        }
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString byQt = decoder.decode(bytes);
        QString ours;
        ASSERT_EQ(isValidUtf8(bytes), !decoder.hasError()) << bytes.toHex().constData();
        ASSERT_EQ(readUtf8(bytes, ours), !decoder.hasError()) << bytes.toHex().constData();
        valid += decoder.hasError() ? 0 : 1;
    }
    EXPECT_GT(valid, 1000);
    EXPECT_LT(valid, 19'000);
}

TEST(Utf8Test, WritesLoneSurrogatesAsTheReplacementCharacter) {
    const QString text = u"ač–📺"_s + QChar(0xd83d) + u'b' + QChar(0xdcfa);
    QByteArray bytes(text.size() * 3, 'x');
    bytes.truncate(writeUtf8(text, bytes.data()) - bytes.constData());
    EXPECT_EQ(bytes, u"ač–📺\uFFFDb\uFFFD"_s.toUtf8());
}

} // namespace
} // namespace guide

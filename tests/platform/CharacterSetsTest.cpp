#include "platform/encoding/CharacterSets.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

TEST(CharacterSetsTest, DecodesStrictlyByName) {
    struct Case {
        const char* name;
        QByteArray bytes;
        QString characterSet;
        std::optional<QString> expected;
    };
    const std::vector<Case> cases{
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
    for (const Case& each : cases) {
        const std::optional<QByteArray> page = utf8FromCharacterSet(each.bytes, each.characterSet);
        EXPECT_EQ(page ? std::optional(QString::fromUtf8(*page)) : std::nullopt, each.expected) << each.name;
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

} // namespace
} // namespace guide

#include "platform/encoding/Utf8.h"

#include <QStringDecoder>

#include <gtest/gtest.h>
#include <random>
#include <tuple>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

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

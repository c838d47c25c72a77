#include "store/PictureURLs.h"

#include "store/PlainWebURL.h"

#include <QString>

#include <gtest/gtest.h>
#include <random>
#include <string_view>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

/// Whether QUrl accepts the text, which must be one of the web, and prints it as it is.
bool isKeptByQUrl(const QByteArray& text) {
    const QUrl strict(QString::fromUtf8(text), QUrl::StrictMode);
    const QUrl tolerant = QUrl::fromEncoded(text);
    return strict.isValid() && tolerant == strict && strict.scheme().startsWith("http"_L1) &&
           !strict.host().isEmpty() && strict.toEncoded() == text;
}

TEST(PlainWebURLTest, AcceptsTheUsualFormsAndLeavesTheRestToQUrl) {
    const std::pair<QByteArray, bool> cases[] = {
        {"https://images.example.net/7/a-b_c~(1).jpg", true},
        {"http://h", true},
        {"http://h?size=1,2&x=%20%C5%A1", true},
        {"http://1tv.3-a.example/;a=b:c@d+e!f$g'h*", true},
        {"https://h/" + QByteArray(2038, 'a'), true},
        {"https://h/" + QByteArray(2039, 'a'), false},
        {"", false},
        {"h/a.png", false},
        {"ftp://h/a.png", false},
        {"HTTP://h/a.png", false},
        {"http:///a.png", false},
        {"http://h:80/", false},
        {"http://user@h/", false},
        {"http://H/", false},
        {"http://h./", false},
        {"http://a..b/", false},
        {"http://-a/", false},
        {"http://a-/", false},
        {"http://xn--a.example/", false},
        {"http://127.1/", false},
        {"http://" + QByteArray(64, 'a') + "/", false},
        {"http://h/a b", false},
        {"http://h/\xC5\xA1", false},
        {"http://h/%41", false},
        {"http://h/%c5", false},
        {"http://h/%4", false},
        {"http://h/#a", false},
    };
    for (const auto& [text, isPlain] : cases) {
        EXPECT_EQ(isPlainWebURL(text), isPlain) << text.toStdString();
        EXPECT_TRUE(!isPlain || isKeptByQUrl(text)) << text.toStdString();
    }
}

TEST(PlainWebURLTest, AcceptsNothingThatQUrlRejectsOrChanges) {
    const auto check = [](const QByteArray& text) {
        const bool isPlain = isPlainWebURL(text);
        EXPECT_TRUE(!isPlain || isKeptByQUrl(text)) << text.toPercentEncoding("/:%").toStdString();
        return isPlain;
    };
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, static_cast<char>(value));
        const QByteArray hex = byte.toHex();
        for (const QByteArray& each : {byte, "%" + hex, "%" + hex.toUpper()}) {
            for (const QByteArray& text : {"http://" + each + "/", "http://a" + each + "b/",
                                           "http://h/" + each, "http://h" + each, "http://h?" + each + "a"}) {
                check(text);
            }
        }
    }

    constexpr std::string_view kPieces[] = {"a",  "z9", "1", "0x", ".",  "-",   "--",  "xn--", "/",
                                            "//", "..", "?", "&",  "%2", "%C3", "%A9", "%2F",  "%"};
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp,cert-msc32-c)
    int plain = 0;
    for (int i = 0; i < 50'000; ++i) {
        QByteArray text = random() % 2 == 0 ? "http://" : "https://";
        for (auto left = random() % 8; left > 0; --left) {
            text += kPieces[random() % std::size(kPieces)];
        }
        plain += check(text) ? 1 : 0;
    }
    EXPECT_GT(plain, 1000);
}

TEST(PictureURLsTest, HoldsEachAddressOnceAsQUrlEncodesIt) {
    PictureURLs pictures{QUrl(u"http://H/š"_s)};
    EXPECT_TRUE(pictures.insertPlain("http://a/1"));
    EXPECT_FALSE(pictures.insertPlain("http://a/1 2"));
    pictures.insertEncoded("http://a/1 2");
    const QByteArrayList all{"http://h/%C5%A1", "http://a/1", "http://a/1%202"};
    EXPECT_EQ(pictures.encoded(), all);

    pictures.insertPlain("http://a/1");
    pictures.insertEncoded("HTTP://a/1%202");
    pictures.insert(QUrl(u"http://h/š"_s));
    EXPECT_EQ(pictures.encoded(), all);
    EXPECT_EQ(pictures.urls(),
              (std::vector{QUrl(u"http://h/š"_s), QUrl(u"http://a/1"_s), QUrl(u"http://a/1 2"_s)}));
    EXPECT_EQ(pictures.first(), QUrl(u"http://h/š"_s));

    for (int i = 0; i < 2 * PictureURLs::kMost; ++i) {
        pictures.insertPlain("http://b/" + QByteArray::number(i));
    }
    EXPECT_EQ(pictures.size(), PictureURLs::kMost);
}

} // namespace
} // namespace guide::test

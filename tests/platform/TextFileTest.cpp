#include "platform/encoding/TextFile.h"

#include "fakes/Files.h"
#include "fakes/Packing.h"
#include "fakes/Zipping.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

struct Reading {
    QByteArray text;
    FileEnd end = FileEnd::Complete;
    std::int64_t replaced = 0;
};

Reading readAll(const QString& path, TextFileOptions options = {}, std::size_t room = 4096) {
    options.physicalMemory = std::uint64_t{1} << 30;
    TextFile file(path, std::move(options));
    QByteArray window(static_cast<qsizetype>(room), Qt::Uninitialized);
    Reading reading;
    while (const std::size_t got = file.read({window.data(), room})) {
        reading.text += window.first(static_cast<qsizetype>(got));
    }
    reading.end = file.end();
    reading.replaced = file.replacedBytes();
    return reading;
}

class TextFileTest : public testing::Test {
  protected:
    QString path() const { return m_folder.filePath(u"file"_s); }

    Reading reading(const QByteArray& content, const TextFileOptions& options = {}, std::size_t room = 4096) {
        EXPECT_TRUE(test::writeFile(path(), content));
        return readAll(path(), options, room);
    }

  private:
    const QTemporaryDir m_folder;
};

QByteArray document() {
    QByteArray text = "<tv>";
    for (int i = 0; i < 20'000; ++i) {
        text += "<a>Příliš žluťoučký " + QByteArray::number(i * 7'919 % 10'007) + "</a>\n";
    }
    return text + "</tv>";
}

TEST_F(TextFileTest, UnpacksByContentAndKeepsWhatPrecedesABreak) {
    const QByteArray text = document();
    const QByteArray gzip = gzipped(text);
    const QByteArray xz = xzPacked(text);
    const QByteArray half = text.first(text.indexOf("</a>", text.size() / 2));
    const std::tuple<const char*, QByteArray, FileEnd, QByteArray> cases[] = {
        {"plain", text, FileEnd::Complete, text},
        {"gzip", gzip, FileEnd::Complete, text},
        {"two members", gzipped(half) + gzipped(text.sliced(half.size())), FileEnd::Complete, text},
        {"garbage behind", gzip + "garbage", FileEnd::Complete, text},
        {"xz", xz, FileEnd::Complete, text},
        {"two streams and padding", xzPacked(half) + QByteArray(8, '\0') + xzPacked(text.sliced(half.size())),
         FileEnd::Complete, text},
        {"empty", "", FileEnd::Complete, ""},
        {"gzip without its end", gzip.chopped(8), FileEnd::CutShort, text},
        {"half a gzip", gzip.first(gzip.size() / 2), FileEnd::CutShort, half.first(40'000)},
        {"half an xz", xz.first(xz.size() / 2), FileEnd::CutShort, text.first(40'000)},
        {"damaged gzip", damaged(gzip), FileEnd::Damaged, half.first(40'000)},
        {"damaged xz", damaged(xz), FileEnd::Damaged, ""},
        {"only a signature", "\x1f\x8b", FileEnd::Damaged, ""},
    };
    for (const auto& [name, packed, end, beginning] : cases) {
        const Reading ours = reading(packed);
        EXPECT_EQ(ours.end, end) << name;
        EXPECT_TRUE(ours.text.startsWith(beginning)) << name;
        EXPECT_EQ(ours.text == text, beginning.size() == text.size()) << name;
        // Damage is found only later.
        EXPECT_TRUE(end == FileEnd::Damaged || text.startsWith(ours.text)) << name;
    }
    EXPECT_EQ(readAll(path() + u"-missing"_s).end, FileEnd::NoFile);
    EXPECT_EQ(readAll(u"/dev/zero"_s).end, FileEnd::NoFile);
}

TEST_F(TextFileTest, ReadsTheFileOfAnArchiveThatIsWanted) {
    const QByteArray text = document();
    const TextFileOptions wanted{.isWanted = [](QStringView start) { return start.startsWith(u"<tv"); }};
    ASSERT_TRUE(test::writeZip(
        path(), {{"readme.txt", "<text>"}, {"a/", ""}, {"a/b.xml", text}, {"c.xml", "<tv/>"}}));
    const Reading found = readAll(path(), wanted);
    EXPECT_EQ(found.end, FileEnd::Complete);
    EXPECT_EQ(found.text, text);

    const QByteArray archive = test::contentOf(path());
    EXPECT_EQ(reading(archive.first(archive.size() / 2), wanted).end, FileEnd::Damaged);
    EXPECT_EQ(reading(damaged(archive), wanted).end, FileEnd::Damaged);
    ASSERT_TRUE(test::writeZip(path(), {{"a.txt", "a"}, {"b.txt", "b"}}));
    EXPECT_EQ(readAll(path(), wanted).end, FileEnd::NothingWanted);
}

TEST_F(TextFileTest, RefusesBombs) {
    constexpr std::size_t kRoom = 1 << 20;
    const QByteArray zeros(PackedFile::kMostAtAnyRatio + 2'000'000, ' ');
    EXPECT_EQ(reading(gzipped(zeros), {}, kRoom).end, FileEnd::TooLarge);
    EXPECT_EQ(reading(gzipped(zeros.first(PackedFile::kMostAtAnyRatio - 1)), {}, kRoom).end,
              FileEnd::Complete);
    ASSERT_TRUE(test::writeZip(path(), {{"a", zeros}}));
    EXPECT_EQ(readAll(path(), {}, kRoom).end, FileEnd::TooLarge);

    test::ArchivedFiles files;
    for (std::uint64_t i = 0; i <= PackedFile::kMostArchivedFiles; ++i) {
        files.emplace_back(QByteArray::number(quint64(i)), "x");
    }
    ASSERT_TRUE(test::writeZip(path(), files));
    EXPECT_EQ(readAll(path(), {}, kRoom).end, FileEnd::TooLarge);
}

QByteArray inUtf16(const QString& text, const char* mark) {
    return mark + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

TEST_F(TextFileTest, DecidesOnTheCharacterSet) {
    const QByteArray latin2 = "<?xml version='1.0' encoding='ISO-8859-2'?><tv>\xB9\xE1</tv>";
    const QByteArray filler(5'000, 'x');
    const std::tuple<const char*, QByteArray, const char*, QByteArray, int> cases[] = {
        {"declared by the document", latin2, "", "šá", 0},
        {"declared by the server", "<tv>\xB9</tv>", "iso-8859-2", "<tv>š</tv>", 0},
        {"not declared", "<tv>\x9A\xE1</tv>", "", "<tv>šá</tv>", 0},
        {"not declared, after long ASCII", filler + QByteArray("\x9A\xE1").repeated(9), "", "xšášá", 0},
        {"declared wrongly", "<?xml encoding=\"iso-8859-2\"?><tv>šá</tv>", "iso-8859-1", "šá", 0},
        {"an unknown name", "<tv>š</tv>", "no-such-set", "<tv>š</tv>", 0},
        {"byte order mark", "\xEF\xBB\xBF<tv>š</tv>", "iso-8859-2", "<tv>š</tv>", 0},
        {"UTF-16", inUtf16(u"<tv>š\U0001F4FA</tv>"_s, "\xFF\xFE"), "", "<tv>š📺</tv>", 0},
        {"UTF-16 without a mark", inUtf16(u"<tv>š</tv>"_s, ""), "", "<tv>š</tv>", 0},
        {"UTF-16 that is not", "<?xml version='1.0' encoding='UTF-16'?><tv>š</tv>", "utf-16", "<tv>š</tv>",
         0},
        {"Japanese", "<tv>\x93\xfa\x96\x7b</tv>", "shift_jis", "<tv>日本</tv>", 0},
        {"single invalid bytes", "šč \xFF " + filler + "š\xC3", "", "šč \uFFFD ", 2},
        {"more letters than damage", "<tv>\xFF šč</tv>", "", "\uFFFD šč", 1},
        {"a cut character", filler + "š\xE2\x82", "", "š\uFFFD", 1},
        {"a late undefined byte", "<tv>\xE1" + filler + "\xA1\xFF</tv>", "iso-8859-7", "\uFFFD</tv>", 1},
        {"control characters", QByteArray("<tv>a\0b\x0B\t</tv>", 14), "", "<tv>a b \t</tv>", 2},
    };
    for (const auto& [name, bytes, charset, part, replaced] : cases) {
        const TextFileOptions options{.charset = QString::fromLatin1(charset)};
        const Reading whole = reading(bytes, options);
        EXPECT_TRUE(whole.text.contains(part)) << name << ": " << whole.text.constData();
        EXPECT_EQ(whole.replaced, replaced) << name;
        EXPECT_EQ(reading(bytes, options, 4).text, whole.text) << name << ", in a small room";
        TextFileOptions small = options;
        small.window = 1'000;
        EXPECT_EQ(reading(bytes, small).text, whole.text) << name << ", in small windows";
    }
}

TEST_F(TextFileTest, DividesCharactersAnywhere) {
    const QString text = QString::fromUtf8(document().first(3'000)) + u"š\u20AC\U0001F4FA"_s.repeated(30);
    const std::pair<QByteArray, const char*> sets[] = {{text.toUtf8(), ""},
                                                       {inUtf16(text, "\xFF\xFE"), ""},
                                                       {"<tv>\xB9" + QByteArray(9, '\xE1'), "iso-8859-2"}};
    for (const auto& [bytes, charset] : sets) {
        TextFileOptions options{.charset = QString::fromLatin1(charset)};
        const QByteArray whole = reading(bytes, options).text;
        for (const std::size_t window : {4, 5, 6, 7, 64}) {
            options.window = window;
            EXPECT_EQ(reading(bytes, options, 4).text, whole) << window;
            EXPECT_EQ(reading(bytes, options, 100).text, whole) << window;
        }
    }
}

} // namespace
} // namespace guide

#include "parsers/xmltv/XMLTVSaxParser.h"

#include "platform/files/FileReplacement.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>

namespace guide {
namespace {

/// Records events: titles as "<title>", other elements as "<>", the end of each as "/".
class Transcript : public XMLTVEvents {
  public:
    explicit Transcript(const std::string& document) {
        m_break = parseXMLTV(QByteArray::fromStdString(document), *this);
    }

    const std::string& events() const { return m_events; }
    /// The texts, separated by vertical bars.
    const std::string& pieces() const { return m_pieces; }
    const std::optional<XMLBreak>& brokeOff() const { return m_break; }

  private:
    void started(XMLTVElement element, const XMLTVAttributes& attributes) override {
        m_events += element == XMLTVElement::Title ? "<title" : "<";
        if (const auto channel = attributes.value("channel")) {
            m_events += " " + std::string(*channel);
        }
        m_events += ">";
    }
    void text(std::string_view piece) override {
        EXPECT_FALSE(piece.empty());
        m_events += piece;
        m_pieces += m_pieces.empty() ? piece : "|" + std::string(piece);
    }
    void ended(XMLTVElement) override { m_events += "/"; }

    std::string m_events;
    std::string m_pieces;
    std::optional<XMLBreak> m_break;
};

std::string events(const std::string& document) {
    return Transcript(document).events();
}

TEST(XMLTVSaxParser, ReportsTheDocument) {
    const struct {
        const char* name;
        std::string document;
        const char* events;
    } rows[] = {
        {"pieces", "<title>a<b>c</b>d</title>", "<title>a<>c/d/"},
        {"references in text", "<title>a&amp;b&#x16F;&lt;</title>", "<title>a&bů</"},
        {"CDATA", "<title>a<![CDATA[<b>&amp;]]>c</title>", "<title>a<b>&amp;c/"},
        {"attributes", "<a channel='&amp;&#38;&quot; &#x16F;\t&#9;'/>", "< &&\" ů \t>/"},
        {"names with a prefix", "<x:title xmlns:x='y' x:channel='1'>a</x:title>", "<>a/"},
        {"a default namespace", "<title xmlns='y' channel='1'>a</title>", "<title 1>a/"},
        {"the declared encoding is ignored", "<?xml version='1.0' encoding='iso-8859-2'?><title>ů</title>",
         "<title>ů/"},
        {"a declaration of two-byte characters", "<?xml version='1.0' encoding='UTF-16'?><title>ů</title>",
         "<title>ů/"},
        {"a byte order mark", "\xEF\xBB\xBF<title>a</title>", "<title>a/"},
        {"stops at a zero byte", std::string("<a><title>a</title>\0<title>b</title></a>", 40), "<><title>a/"},
        {"stops at an error", "<a><title>a</title><title>b</a><title>c</title></a>", "<><title>a/<title>b"},
        {"an entity in text", "<!DOCTYPE a [<!ENTITY e 'f<title>g</title>'>]><a>1&e;2&e;</a>",
         "<>1f<title>g/2f<title>g//"},
        {"an entity in a value", "<!DOCTYPE a [<!ENTITY e 'f&#38;#38;'>]><a channel='1&e;&amp;'/>",
         "< 1f&&>/"},
        {"an entity that the missing DTD may define", "<!DOCTYPE a SYSTEM 'b.dtd'><a>1&e;2</a>", "<>12/"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(events(row.document), row.events) << row.name;
    }
}

TEST(XMLTVSaxParser, TellsWhereADocumentBrokeOff) {
    const std::string before = "<tv>\n<title>a</title>\n";
    std::string many = "<a";
    for (int i = 0; i < 20'000; ++i) {
        many += " a" + std::to_string(i) + "=''";
    }
    const std::string filler(2'000'000, 'x');
    const struct {
        const char* name;
        std::string rest;
        bool breaks;
        /// Part of the message.
        const char* message;
    } rows[] = {
        {"well-formed", "</tv>", false, ""},
        {"a bare ampersand", "A & B</tv>", true, "name"},
        {"an HTML entity", "&nbsp;</tv>", true, "nbsp"},
        {"a control character", "\x01</tv>", true, "PCDATA"},
        {"a bare less-than", "1 < 2</tv>", true, "StartTag"},
        {"cut off", "<title>b", true, "end of data"},
        {"a huge value", "<a b='" + filler + "'/></tv>", true, "1 MB"},
        {"a huge value with signs", "<a b='>" + filler + "\"'/></tv>", true, "1 MB"},
        {"a huge tag without an end", "<a " + filler, true, "1 MB"},
        {"too many attributes", many + "/></tv>", true, "attributes"},
        {"a huge comment", "<!--" + filler + "--></tv>", true, "1 MB"},
        {"a huge text", "<title>" + filler + "</title></tv>", false, ""},
        {"a huge section", "<![CDATA[" + filler + "]]></tv>", false, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Transcript read(before + row.rest);
        EXPECT_TRUE(read.events().starts_with("<>\n<title>a/"));
        ASSERT_EQ(read.brokeOff().has_value(), row.breaks);
        if (read.brokeOff()) {
            EXPECT_NE(read.brokeOff()->message.find(row.message), std::string::npos)
                << read.brokeOff()->message;
            EXPECT_GE(read.brokeOff()->byte, before.size());
            EXPECT_LE(read.brokeOff()->byte, before.size() + 10);
        }
    }
}

TEST(XMLTVSaxParser, EndsAtAHugeDeclaration) {
    std::string names = "n";
    for (int i = 0; i < 200'000; ++i) {
        names += "|n" + std::to_string(i);
    }
    const Transcript read("<!DOCTYPE a [<!ATTLIST a b (" + names + ") #IMPLIED>]><a/>");
    EXPECT_TRUE(read.brokeOff());
    EXPECT_EQ(read.events(), "");
}

TEST(XMLTVSaxParser, StopsWhenAsked) {
    int elements = 0;
    Transcript events("<a/>");
    const auto end = parseXMLTV("<a>" + QByteArray("<b/>").repeated(100) + "</a>", events,
                                [&elements] { return ++elements == 10; });
    EXPECT_TRUE(end);
    EXPECT_EQ(elements, 10);
}

TEST(XMLTVSaxParser, DoesNotSplitText) {
    std::string parts;
    for (int i = 0; i < 60; ++i) {
        parts += "5. Spájanie  ║ " + std::to_string(i);
    }
    const std::vector<std::pair<std::string, std::string>> rows{
        {parts, parts},
        {"1\r\n2ů\r\n\r\n3\r4\r\r\n", "1\n2ů\n\n3\n4\n\n"},
        {"\r\nů\n", "\nů\n"},
        {"ů&amp;ů;&#x16F;ů&x;ů", "ů|&|ů;|ů|ů|x|ů"},
        {"ů<![CDATA[ů]]>ů<!--ů-->ů<?p ů?>ů", "ů|ů|ů|ů|ů"},
        {"ů<b>ů</b>ů", "ů|ů|ů"},
    };
    for (const auto& [text, pieces] : rows) {
        EXPECT_EQ(Transcript("<!DOCTYPE a [<!ENTITY x 'x'>]><a>" + text + "</a>").pieces(), pieces);
    }
}

TEST(XMLTVSaxParser, ReadsNoExternalResource) {
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("secret"));
    ASSERT_TRUE(replaceFile(file, "<!ENTITY hidden 'secret'><title>secret</title>"));
    const std::string path = file.toStdString();
    const std::vector<std::string> documents{
        "<!DOCTYPE a [<!ENTITY e SYSTEM 'file://" + path + "'>]><a>x&e;</a>",
        "<!DOCTYPE a [<!ENTITY % e SYSTEM '" + path + "'> %e;]><a>x&hidden;</a>",
        "<!DOCTYPE a SYSTEM '" + path + "'><a>x&hidden;</a>",
        "<!DOCTYPE a PUBLIC 'p' '" + path + "' [<!ENTITY e 'f'>]><a channel='&hidden;'>x&hidden;</a>",
    };
    for (const std::string& document : documents) {
        EXPECT_EQ(events(document).find("secret"), std::string::npos) << document;
    }
}

/// Nested entities, each expanding to ten of the previous one.
std::string laughs(const char* open, const std::string& innermost, const char* close,
                   const std::string& document) {
    std::string text = "<!DOCTYPE a [";
    for (int level = 0; level < 12; ++level) {
        text += std::string("<!ENTITY ") + open + "e" + std::to_string(level) + " '";
        for (int i = 0; level > 0 && i < 10; ++i) {
            text += close + std::to_string(level - 1) + ";";
        }
        text += (level == 0 ? innermost : "") + "'>";
    }
    return text + document;
}

TEST(XMLTVSaxParser, LimitsEntityExpansion) {
    constexpr std::size_t kBound = 12'000'000;
    const std::string filler(100'000, 'x');
    std::string references;
    for (int i = 0; i < 30'000; ++i) {
        references += "&e;";
    }
    const std::vector<std::string> documents{
        laughs("", "ha", "&e", "]><a><title>&e11;</title></a>"),
        laughs("", "", "&e", "]><a><title>&e11;</title></a>"),
        laughs("", "<b/>", "&e", "]><a><title>&e11;</title></a>"),
        laughs("", "ha", "&e", "]><a channel='&e11;'/>"),
        laughs("% ", "", "&#37;e", "%e11;]><a>x</a>"),
        "<!DOCTYPE a [<!ENTITY e '" + filler + "'>]><a>" + references + "</a>",
        "<!DOCTYPE a [<!ENTITY e '" + filler + "'>]><a channel='" + references + "'/>",
    };
    for (const std::string& document : documents) {
        EXPECT_LT(events(document).size(), kBound) << document.substr(0, 60);
    }
}

} // namespace
} // namespace guide

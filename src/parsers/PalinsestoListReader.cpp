#include "parsers/PalinsestoListReader.h"

#include "parsers/PalinsestoEvents.h"
#include "parsers/ReaderPages.h"

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view kId = " id=\"";
constexpr std::string_view kSectionEnd = "</canale>";
constexpr std::size_t kCodeLength = 2;

/// A document's sections of channels, so that each channel's own can be had without the others'.
class Sections {
  public:
    explicit Sections(std::string_view text)
        : m_text(text) {
        MarkerTrace unasked;
        MarkerWalk walk(text, unasked);
        std::optional<std::size_t> end;
        while (walk.pass(kId) && !walk.atEnd()) {
            const std::size_t code = walk.position();
            if (!end || *end < code) {
                end = walk.find(kSectionEnd);
            }
            const std::size_t inside = end ? tagEnd(code, *end) : 0;
            if (inside == 0) {
                break;
            }
            if (text[inside - 2] == '/') {
                walk.moveTo(inside); // a channel without a section
                continue;
            }
            m_sections.push_back({code, inside, *end});
            walk.moveTo(*end);
        }
    }

    bool empty() const { return m_sections.empty(); }

    /// The document with the inside of every other channel's section left out. Codes are compared by as many
    /// characters as the service's have.
    QByteArray documentOf(std::string_view code) const {
        QByteArray document;
        std::size_t kept = 0;
        for (const Section& section : m_sections) {
            if (code.size() != kCodeLength || m_text.substr(section.code, kCodeLength) != code) {
                append(document, kept, section.inside);
                kept = section.end;
            }
        }
        append(document, kept, m_text.size());
        return document;
    }

  private:
    struct Section {
        std::size_t code;
        std::size_t inside;
        std::size_t end;
    };

    /// Behind the tag in one of whose values the position stands; 0 when it does not end before the limit.
    std::size_t tagEnd(std::size_t position, std::size_t limit) const {
        char quote = '"';
        for (; position < limit; ++position) {
            const char character = m_text[position];
            if (quote != '\0') {
                quote = character == quote ? '\0' : quote;
            } else if (character == '>') {
                return position + 1;
            } else if (character == '"' || character == '\'') {
                quote = character;
            }
        }
        return 0;
    }

    void append(QByteArray& document, std::size_t from, std::size_t to) const {
        document.append(m_text.data() + from, static_cast<qsizetype>(to - from));
    }

    const std::string_view m_text;
    std::vector<Section> m_sections;
};

/// Source ids look like "_I1".
std::string codeOf(const LoadItem& item) {
    return item.sourceId.mid(1).toStdString();
}

/// Takes the rows of the item's channel, as shows of it.
void addShows(const std::vector<ExtendedTVEntry>& rows, const LoadItem& item,
              std::vector<ExtendedTVEntry>& list) {
    for (const ExtendedTVEntry& row : rows) {
        if (!row.basic->identificator() || row.basic->sourceId() != item.sourceId) {
            continue;
        }
        // A copy: two channels may be filed under one code.
        auto entry = std::make_shared<TVEntry>(*row.basic);
        entry->setChannel(item.channel);
        const QString description = entry->instantDescription1().value_or(QString());
        if (entry->identificator() == "Nessuna Informazione"_L1 && !description.isEmpty()) {
            entry->setIdentificator(description);
            entry->setInstantDescription1(std::nullopt);
        }
        list.push_back({std::move(entry), row.categories, nullptr, {}});
    }
}

} // namespace

void readPalinsestoLists(const ListReaderInput& input, ParsedLists& lists) {
    const QByteArray text = joinedPages(input.pages);
    const Sections sections(pageText(text));
    const auto rowsOf = [&input](const QByteArray& document, const PalinsestoCodes& wanted) {
        return palinsestoRows(document, wanted, input.alphabet, input.locale);
    };
    PalinsestoCodes all;
    for (const LoadItem& item : input.items) {
        all.insert(codeOf(item));
    }
    // A document without sections is the same for all.
    const auto common = sections.empty() ? rowsOf(text, all) : std::nullopt;
    for (const LoadItem& item : input.items) {
        const std::string code = codeOf(item);
        const auto own = sections.empty() ? std::nullopt : rowsOf(sections.documentOf(code), {code});
        if (const auto& rows = sections.empty() ? common : own) {
            std::vector<ExtendedTVEntry> list;
            addShows(*rows, item, list);
            if (list.empty()) {
                input.trace.miss(std::string(sections.empty() ? "idref=\"" : kId) + code + '"');
            }
            lists[item.channel] = std::move(list);
        }
    }
}

} // namespace guide

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
    Sections(std::string_view text, MarkerTrace& trace)
        : m_text(text) {
        MarkerWalk walk(text, trace);
        while (walk.pass(kId) && !walk.atEnd()) {
            const std::size_t code = walk.position();
            MarkerWalk tag = walk;
            const auto end = walk.find(kSectionEnd);
            if (!end || !tag.pass(">") || tag.position() > *end) {
                break;
            }
            m_sections.push_back({code, tag.position(), *end});
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

    void append(QByteArray& document, std::size_t from, std::size_t to) const {
        document.append(m_text.data() + from, static_cast<qsizetype>(to - from));
    }

    const std::string_view m_text;
    std::vector<Section> m_sections;
};

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
    const Sections sections(pageText(text), input.trace);
    const auto rowsOf = [&input](const QByteArray& document) {
        return palinsestoRows(document, input.alphabet, input.locale);
    };
    // A document without sections is the same for all.
    const auto common = sections.empty() ? rowsOf(text) : std::nullopt;
    for (const LoadItem& item : input.items) {
        const auto own =
            sections.empty() ? std::nullopt : rowsOf(sections.documentOf(item.sourceId.mid(1).toStdString()));
        if (const auto& rows = sections.empty() ? common : own) {
            std::vector<ExtendedTVEntry> list;
            addShows(*rows, item, list);
            lists[item.channel] = std::move(list);
        }
    }
}

} // namespace guide

#include "parsers/formats/PalinsestoListReader.h"

#include "parsers/formats/PalinsestoEvents.h"
#include "parsers/formats/ReaderPages.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>

namespace guide {

namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view kId = " id=\"";
constexpr std::string_view kSectionEnd = "</canale>";
constexpr std::size_t kCodeLength = 2;

/// Finds the section of each channel, so that one channel can be read without the others.
class Sections {
  public:
    explicit Sections(std::string_view text)
        : m_text(text) {
        MarkerTrace unused;
        MarkerWalk walk(text, unused);
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

    /// The document without the contents of all other channels' sections. Only codes of two characters match
    /// a section.
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

    /// The end of the tag that contains `position` inside an attribute value; 0 when it does not end before
    /// `limit`.
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

using Items = std::vector<const LoadItem*>;

/// Turns the row into a show of the item.
ExtendedTVEntry showOf(const LoadItem& item, std::shared_ptr<TVEntry> entry,
                       std::optional<TVListingsCategory> categories) {
    entry->setChannel(item.channel);
    const QString description = entry->instantDescription1().value_or(QString());
    if (entry->identificator() == "Nessuna Informazione"_L1 && !description.isEmpty()) {
        entry->setIdentificator(description);
        entry->setInstantDescription1(std::nullopt);
    }
    return {std::move(entry), categories, nullptr, {}};
}

/// Replaces the lists of the items by the rows that are shows, matched by source id.
void distribute(std::vector<ExtendedTVEntry> rows, const Items& items, ParsedLists& lists) {
    struct Recipient {
        const LoadItem* item;
        std::vector<ExtendedTVEntry>* list;
    };
    QHash<QString, std::vector<Recipient>> recipients;
    for (const LoadItem* item : items) {
        std::vector<ExtendedTVEntry>& list = lists[item->channel];
        list.clear();
        recipients[item->sourceId].push_back({item, &list});
    }
    for (ExtendedTVEntry& row : rows) {
        if (!row.basic->identificator() || !row.basic->sourceId()) {
            continue;
        }
        const auto own = recipients.constFind(*row.basic->sourceId());
        if (own == recipients.cend()) {
            continue;
        }
        // Two channels may share one code.
        for (std::size_t i = 1; i < own->size(); ++i) {
            const Recipient& other = (*own)[i];
            other.list->push_back(showOf(*other.item, std::make_shared<TVEntry>(*row.basic), row.categories));
        }
        own->front().list->push_back(showOf(*own->front().item, std::move(row.basic), row.categories));
    }
}

} // namespace

void readPalinsestoLists(const ListReaderInput& input, ParsedLists& lists) {
    const QByteArray text = joinedPages(input.pages);
    const Sections sections(pageText(text));
    PalinsestoTexts texts(input.locale);
    PalinsestoCodes codes;
    std::map<std::string, Items> itemsOfCodes;
    Items all;
    for (const LoadItem& item : input.items) {
        const std::string code = codeOf(item);
        codes.emplace(code, u'_' + QString::fromStdString(code));
        itemsOfCodes[code].push_back(&item);
        all.push_back(&item);
    }
    const auto read = [&](const QByteArray& document, const PalinsestoCodes& wanted, const Items& items) {
        auto rows = palinsestoRows(document, wanted, input.alphabet, texts,
                                   [&input] { return input.control.isStopped(); });
        if (!rows) {
            return;
        }
        distribute(*std::move(rows), items, lists);
        for (const LoadItem* item : items) {
            if (lists[item->channel].empty()) {
                input.trace.miss(std::string(sections.empty() ? "idref=\"" : kId) + codeOf(*item) + '"');
            }
        }
    };
    // A document without sections is read once for all channels.
    if (sections.empty()) {
        read(text, codes, all);
        return;
    }
    for (const auto& [code, items] : itemsOfCodes) {
        read(sections.documentOf(code), {*codes.find(code)}, items);
    }
}

PlannedURLs planMediasetFile(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"MediasetHost"_s), u"/dati/palinsesto/palinsesto.xml"_s);
}

PlannedURLs planMediasetPayFile(const PlanRequest& request) {
    return singleURL(request.hosts.base(u"MediasetPayHost"_s), u"/export/palinsesto.xml"_s);
}

bool isMediasetCode(const QString& sourceId) {
    constexpr std::array kCodes{"C5"_L1, "I1"_L1, "I2"_L1,    "R4"_L1,  "KA"_L1,
                                "KQ"_L1, "KI"_L1, "BOING"_L1, "CRTN"_L1};
    const QStringView code = QStringView(sourceId).mid(1);
    return sourceId.startsWith(u'_') &&
           std::ranges::any_of(kCodes, [code](QLatin1StringView known) { return code == known; });
}

} // namespace guide

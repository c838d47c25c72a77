#include "parsers/details/PortDetails.h"

#include "parsers/details/PortPopups.h"
#include "parsers/markers/PlainText.h"
#include "text/cleaning/MarkupText.h"

#include <QStringList>

#include <initializer_list>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using Markers = std::initializer_list<std::string_view>;

/// The most tags allowed between a label and its text.
constexpr int kMostTags = 8;
/// A longer match is not a link or a row of names: its end belongs to something else.
constexpr std::size_t kLongestLink = 500;
constexpr std::size_t kLongestRow = 4'000;

std::optional<QString> trimmedText(const std::optional<std::string_view>& lifted) {
    return lifted ? textUnlessEmpty(decodeMarkup(pageString(*lifted).trimmed())) : std::nullopt;
}

void fill(std::optional<QString>& field, std::optional<QString> text) {
    if (!field) {
        field = std::move(text);
    }
}

// ---- pictures

/// The number at the beginning of a text, 0 when there is none.
int leadingNumber(const QString& text) {
    qsizetype digits = 0;
    while (digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9') {
        ++digits;
    }
    bool fits = false;
    const int number = text.left(digits).toInt(&fits);
    return fits ? number : 0;
}

void readPictures(const DetailPage& page, ShowDetails& show) {
    constexpr qsizetype kMostPictures = 16;
    MarkerWalk walk = page.walk();
    while (show.pictures.size() < kMostPictures) {
        const auto lifted = walk.take("url(", ")");
        if (!lifted) {
            return;
        }
        // Trimming removes leading quotation marks. Addresses relative to the root are the site's own
        // decoration and are dropped.
        auto link = trimmedListingText(decodeMarkup(pageString(*lifted)));
        if (!link) {
            continue;
        }
        while (link->endsWith(u'"') || link->endsWith(u'\'') || link->endsWith(u';')) {
            link->chop(1);
        }
        addPicture(show, decodedLink(link->replace("_2"_L1, "_0"_L1).toStdString(), QUrl()));
    }
}

// ---- links

bool isIMDbHost(const QString& host, const SourceHostTable& hosts) {
    const QString configured = QUrl(hosts.base(u"IMDbHost"_s).value_or(QString())).host();
    return host == configured || host.startsWith("imdb."_L1) || host.contains(".imdb."_L1);
}

/// The first link to a title. Sites without a known title print only the beginning of a link.
std::optional<QUrl> imdbLink(const DetailPage& page) {
    const std::string_view path = "/title/tt";
    MarkerWalk walk = page.walk();
    while (walk.moveTo(path)) {
        const std::size_t place = walk.position();
        walk.moveTo(place + path.size());
        const std::string_view number = walk.characters(1);
        const std::size_t from = place > kLongestLink ? place - kLongestLink : 0;
        const std::size_t start = page.text.substr(from, place - from).rfind('"');
        if (number.empty() || number < "0" || number > "9" || start == std::string_view::npos) {
            continue;
        }
        const auto link = decodedLink(walk.part(from + start + 1).takeUpTo("\""), page.url);
        if (link && isIMDbHost(link->host(), page.hosts)) {
            return link;
        }
    }
    return std::nullopt;
}

std::optional<QUrl> labelledIMDbLink(const DetailPage& page) {
    MarkerWalk walk = page.walk();
    const auto label = walk.find(">IMDb<");
    MarkerWalk before = walk.part(0, label.value_or(0));
    const auto start = label ? before.findLast(" href=\"") : std::nullopt;
    if (!start) {
        return std::nullopt;
    }
    before.moveTo(*start);
    return decodedLink(before.take(" href=\"", "\""), page.url);
}

// ---- texts

/// The text after the first of these labels that the page has, skipping the tags in between.
std::optional<QString> labelledText(const DetailPage& page, Markers labels) {
    for (const std::string_view label : labels) {
        MarkerWalk walk = page.walk();
        if (!walk.pass(label)) {
            continue;
        }
        for (int tag = 0; tag < kMostTags; ++tag) {
            const auto lifted = walk.take(">", "<");
            if (!lifted) {
                break;
            }
            if (auto text = trimmedText(lifted)) {
                return text;
            }
        }
    }
    return std::nullopt;
}

/// The row of linked names after the first of these labels that the page has.
std::optional<QString> linkedNames(const DetailPage& page, Markers labels) {
    for (const std::string_view label : labels) {
        MarkerWalk walk = page.walk();
        const auto row = walk.take(label, "</a></span>");
        if (row && row->size() <= kLongestRow) {
            return textUnlessEmpty(plainText(*row));
        }
    }
    return std::nullopt;
}

std::optional<QString> listedDirectors(const DetailPage& page) {
    const auto list = page.walk().take("<label>rendező:</label>", "</li>");
    if (!list) {
        return std::nullopt;
    }
    QStringList names;
    MarkerWalk walk(*list, page.trace);
    while (const auto name = walk.take("itemprop=\"name\">", "<")) {
        names.append(pageString(*name).trimmed());
    }
    names.removeAll(QString());
    return textUnlessEmpty(names.join(u'\n'));
}

/// One line per actor, with the role in brackets after the name. A field that is not closed ends with its
/// row.
std::optional<QString> actors(const DetailPage& page) {
    const std::string_view kName = "<span itemprop=\"name\">";
    const std::string_view kPart = "<span>";
    const auto block = page.walk().take("<!-- actors -->", "<!-- /actors -->");
    if (!block) {
        return std::nullopt;
    }
    QString roles;
    MarkerWalk walk(*block, page.trace);
    // A row ends with its list item or, without list items, at the next name.
    const bool hasItems = walk.contains("</li>");
    while (walk.pass(kName)) {
        const MarkerWalk row = walk.part(walk.position(), walk.findOrLimit(hasItems ? "</li>" : kName));
        const QString name = pageString(row.part(row.position(), row.findOrLimit("<")).rest()).trimmed();
        QString part;
        MarkerWalk inner = row;
        if (inner.contains(kPart) && inner.pass(kPart)) {
            part = pageString(inner.part(inner.position(), inner.findOrLimit("<")).rest()).trimmed();
        }
        if (part.startsWith(u'(') && part.endsWith(u')')) {
            part = part.sliced(1, part.size() - 2);
        }
        if (!name.isEmpty()) {
            roles += part.isEmpty() ? name + u'\n' : u"%1 (%2)\n"_s.arg(name, part);
        }
        walk.moveTo(row.limit());
    }
    return textUnlessEmpty(roles);
}

std::optional<QString> summary(const DetailPage& page) {
    const auto block = page.walk().take("<!-- summary -->", "<!-- /summary -->");
    if (!block) {
        return std::nullopt;
    }
    QStringList parts;
    for (const std::string_view start : {"<div>", "<span class=\"txt\"> "}) {
        MarkerWalk walk(*block, page.trace);
        while (const auto lifted = walk.take(start, "<")) {
            if (const auto text = trimmedText(lifted)) {
                parts.append(*text);
            }
        }
    }
    const QString details = parts.join(u", "_s);
    if (details == u"uživo"_s) {
        return u"live"_s;
    }
    if (details == "repriza"_L1) {
        return u"replay"_s;
    }
    if (details == "zabavni magazin"_L1) {
        return u"entertainment magazine"_s;
    }
    return textUnlessEmpty(details);
}

} // namespace

void readPortDetails(const DetailPage& page, ShowDetails& show) {
    const int number = leadingNumber(page.sourceId);
    if (number >= 1 && number <= 9999) {
        readPictures(page, show);
    }
    readPortPopups(page, show);

    TVEntrySupplementalData& details = show.details;
    details.imdbURL = imdbLink(page);
    details.episodeDescription =
        trimmedText(page.walk().take("<strong>Az aktuális rész ismertetője:</strong>", "<"));
    details.description = trimmedText(page.walk().take("<strong>A műsor ismertetése:</strong>", "<"));
    details.directedBy = listedDirectors(page);
    if (!details.imdbURL) {
        details.imdbURL = labelledIMDbLink(page);
    }
    fill(details.description, trimmedText(page.walk().take("<meta name=\"description\" content=\"", "\"")));
    fill(details.description,
         labelledText(page, {"<strong>Opis filma:", "<strong>Obsah filmu:", "<strong>A film ismertetése:"}));
    fill(details.episodeDescription, labelledText(page, {"<strong>Opis epizode:", "<strong>Obsah této části:",
                                                         "<strong>Az aktuális rész ismertetője:"}));
    fill(details.directedBy,
         linkedNames(page, {">redatelj:", ">reditelj:", ">réžia:", ">režie:", "regizor:"}));
    details.roles = actors(page);
    fill(details.roles,
         labelledText(page, {">uloge:", ">szereplő(k):", ">hrajú:", ">herec:", ">hrají:", "Distribuţia:"}));
    details.details = summary(page);
}

} // namespace guide

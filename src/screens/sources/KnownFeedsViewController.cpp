#include "screens/sources/KnownFeedsViewController.h"

#include "screens/Localized.h"
#include "screens/ShowTexts.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/SourceTexts.h"
#include "text/search/FoldedText.h"

#include <QCollator>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

std::vector<Row> knownFeedRows(const SectionId& section, const KnownFeedCountry& country,
                               const QLocale& locale) {
    std::vector<Row> rows;
    for (const KnownFeed& feed : country.feeds) {
        QStringList facts{Localized::tr("not ours")};
        if (feed.channels > 0) {
            facts << Localized::tr("%n channel(s)", nullptr, feed.channels);
        }
        if (feed.bytes > 0) {
            facts << locale.formattedDataSize(feed.bytes, 1, QLocale::DataSizeSIFormat);
        }
        if (feed.alive.isValid()) {
            facts << Localized::tr("last reported alive %1")
                         .arg(locale.toString(feed.alive, QLocale::ShortFormat));
        }
        // Lines break between the facts.
        facts.replaceInStrings(u" "_s, QString(QChar(QChar::Nbsp)));
        rows.push_back(
            {.id = {section, QString::number(rows.size())},
             .content = TextRow{.title = Localized::tr("Public feed of %1")
                                             .arg(feed.name.isEmpty() ? feed.provider
                                                                      : feed.provider + u", "_s + feed.name),
                                .subtitle = facts.join(kBetweenFacts),
                                .accessory = Accessory::Disclosure},
             .selectable = true});
    }
    return rows;
}

QString knownFeedsFooter() {
    return Localized::tr(
        "These are the public feeds of others, not ours: they may be wrong, late or gone. One "
        "is asked only after you choose it.");
}

KnownFeedsViewController::KnownFeedsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                   std::function<void(const QString&)> chosen)
    : m_environment(std::move(environment))
    , m_chosen(std::move(chosen)) {}

void KnownFeedsViewController::viewDidLoad() {
    setTitle(Localized::tr("Public feeds"));
    setSearchField(SearchField{Localized::tr("Search countries")});
    show();
}

void KnownFeedsViewController::searchTextEdited(const QString& text) {
    m_searched = text.trimmed();
    show();
}

void KnownFeedsViewController::show() {
    const QLocale locale = m_environment->device.locale();
    const QString own = regionOf(locale);
    const QString pattern = foldedText(m_searched);
    std::vector<Section> sections;
    for (const KnownFeedCountry& country : m_environment->knownFeeds->countries()) {
        const QString name = countryName(country.region, locale);
        if (foldedText(name).contains(pattern)) {
            sections.push_back({.id = country.region,
                                .header = name,
                                .rows = knownFeedRows(country.region, country, locale)});
        }
    }
    const QCollator collator(locale);
    std::ranges::sort(sections, [&](const Section& a, const Section& b) {
        return (a.id == own) != (b.id == own) ? a.id == own : collator(a.header, b.header);
    });
    if (!sections.empty()) {
        sections.back().footer = knownFeedsFooter();
    }
    table().setEmptyNote(EmptyNote{Localized::tr("No feeds are known for “%1”").arg(m_searched), {}});
    table().setSections(std::move(sections));
}

void KnownFeedsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const KnownFeedCountry* country = m_environment->knownFeeds->feedsForRegion(id.section);
    if (!country || !std::holds_alternative<Tapped>(event)) {
        return;
    }
    // The stack lets go of the screen.
    const auto self = shared_from_this();
    const QString address = country->feeds[id.name()->toUInt()].address;
    if (NavigationController* navigation = navigationController()) {
        navigation->pop();
    }
    m_chosen(address);
}

} // namespace guide

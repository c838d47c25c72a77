#include "screens/sources/SourceHealth.h"

#include "screens/Localized.h"
#include "screens/sources/SourceTexts.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostTitles = 20;

/// "A, B and 5 more".
QString titlesText(const QStringList& titles) {
    const QString shown = titles.first(std::min(titles.size(), kMostTitles)).join(u", "_s);
    const auto more = static_cast<int>(titles.size() - kMostTitles);
    return more > 0 ? Localized::tr("%1 and %n more", nullptr, more).arg(shown) : shown;
}

} // namespace

std::vector<SourceFact> sourceFacts(const OwnSource& source, const SourceStatus& status,
                                    const Device& device) {
    const QLocale locale = device.locale();
    std::vector<SourceFact> facts;
    const auto addMoment = [&](const char* id, const QString& title, const std::optional<Moment>& moment) {
        if (moment) {
            facts.push_back({id, title, dayAndTime(*moment, device), true});
        }
    };
    addMoment("tried", Localized::tr("Last try"), status.lastTry);
    addMoment("success", Localized::tr("Last success"), status.lastSuccess);
    addMoment("next", Localized::tr("Next try"), status.nextTry);
    if (status.channels > 0) {
        QStringList counts{Localized::tr("%n channel(s)", nullptr, status.channels)};
        if (source.kind != OwnSourceKind::Playlist) {
            counts << Localized::tr("%1 with shows").arg(locale.toString(status.channelsWithShows))
                   << Localized::tr("%n show(s)", nullptr, status.shows);
        }
        counts << locale.formattedDataSize(status.unpackedBytes, 1, QLocale::DataSizeSIFormat);
        facts.push_back({"counts", Localized::tr("In the source"), counts.join(u" · "_s)});
    }
    facts.push_back({"chosen", Localized::tr("Chosen"),
                     Localized::tr("%n channel(s)", nullptr, static_cast<int>(source.channels.size())),
                     true});
    addMoment("newest", Localized::tr("Last show"), status.newestShow);
    if (!status.keptBack.isEmpty()) {
        facts.push_back({"kept", Localized::tr("Kept from before, because the new shows were fewer"),
                         titlesText(status.keptBack)});
    }
    if (!status.missing.isEmpty()) {
        facts.push_back({"missing",
                         source.kind == OwnSourceKind::Playlist ? Localized::tr("No longer in the source")
                                                                : Localized::tr("Without shows"),
                         titlesText(status.missing)});
    }
    return facts;
}

QString sourceReport(const OwnSource& source, const SourceStatus& status, const Device& device) {
    QStringList lines{source.name, source.address, sourceResultText(status.result, status.detail)};
    for (const SourceFact& fact : sourceFacts(source, status, device)) {
        lines << fact.title + u": "_s + fact.value;
    }
    lines << Localized::tr("Move all times") + u": "_s + shiftText(source.shift, device.locale());
    for (const OwnChannel& channel : source.channels) {
        QStringList parts{channel.title, channel.key, channel.language};
        if (channel.shift != std::chrono::minutes(0)) {
            parts << shiftText(channel.shift, device.locale());
        }
        if (channel.guide) {
            parts << channel.guide->channel;
        }
        lines << u"- "_s + parts.join(u" | "_s);
    }
    if (!status.output.isEmpty()) {
        lines << Localized::tr("Output of the program") + u':' << status.output;
    }
    return lines.join(u'\n') + u'\n';
}

} // namespace guide

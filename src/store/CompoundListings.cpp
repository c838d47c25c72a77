#include "store/CompoundListings.h"

#include "store/LocalTime.h"

namespace guide {

namespace {

/// Finds the icons of one result and remembers also the channels that have none.
class ChannelIcons {
  public:
    ChannelIcons(const CatalogueSnapshot& channels, TVStationIcons& icons, CompoundResult& result)
        : m_channels(channels)
        , m_icons(icons)
        , m_result(result) {}

    bool has(const ObjectId& channel) {
        const auto [known, isNew] = m_known.try_emplace(channel, false);
        if (isNew) {
            known->second = find(channel);
        }
        return known->second;
    }

  private:
    bool find(const ObjectId& channel) {
        const CatalogueChannel* known = m_channels.find(channel);
        if (!known) {
            return false;
        }
        QImage image = m_icons.iconNamed(known->icon);
        if (image.isNull()) {
            return false;
        }
        m_result.channelIcons.emplace(channel, std::move(image));
        m_result.channelIconNames.emplace(channel, known->icon);
        return true;
    }

    const CatalogueSnapshot& m_channels;
    TVStationIcons& m_icons;
    CompoundResult& m_result;
    std::unordered_map<ObjectId, bool> m_known;
};

} // namespace

CompoundResult compoundListings(std::span<const ShowItem> shows, const CatalogueSnapshot& channels,
                                TVStationIcons& icons, const QLocale& locale, const QTimeZone& zone) {
    CompoundResult result;
    ChannelIcons channelIcons(channels, icons, result);
    LocalTime localTime(zone);
    QHash<QDate, QString> titles;
    for (const ShowItem& show : shows) {
        if (!show || !show.entry()->dateTime() || !channelIcons.has(show.entry()->channel())) {
            continue;
        }
        QString& title = titles[localTime.dateAt(*show.entry()->dateTime())];
        if (title.isNull()) {
            title = locale.toString(localTime.dateAt(*show.entry()->dateTime()), QLocale::LongFormat);
        }
        ShowItems& section = result.sections[title];
        if (section.empty()) {
            result.sectionTitles.push_back(title);
        }
        section.push_back(show);
    }
    return result;
}

} // namespace guide

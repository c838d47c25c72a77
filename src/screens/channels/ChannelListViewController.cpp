#include "screens/channels/ChannelListViewController.h"

#include "screens/Localized.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

ChannelListViewController::ChannelListViewController(AppNavigation& navigation,
                                                     std::vector<StreamChannel> channels)
    : m_navigation(navigation)
    , m_channels(std::move(channels)) {}

void ChannelListViewController::viewDidLoad() {
    setTitle(Localized::tr("Channels"));
    table().setEmptyNote(EmptyNote{Localized::tr("No channels yet"),
                                   Localized::tr("The channels that you have chosen appear here.")});
    Section section{.id = u"channels"_s};
    for (const StreamChannel& channel : m_channels) {
        section.rows.push_back(
            {.id = {section.id, channel.identificator},
             .content = ChannelRow{.title = channel.title,
                                   .subtitle = channel.stream ? QString() : Localized::tr("No live stream"),
                                   .icon = channel.icon,
                                   .accessory = channel.stream ? Accessory::Play : Accessory::None}});
    }
    table().setSections({std::move(section)});
}

void ChannelListViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const auto channel = std::ranges::find(m_channels, *id.channel(), &StreamChannel::identificator);
    if (std::holds_alternative<AccessoryTapped>(event) && channel != m_channels.end() && channel->stream) {
        m_navigation.playURL(*channel->stream);
    }
}

} // namespace guide

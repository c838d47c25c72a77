#pragma once

#include "core/own/SourcePreview.h"
#include "platform/Device.h"
#include "screens/kit/Table.h"
#include "screens/sources/PlaylistMatches.h"

#include <QSet>
#include <QString>

#include <cstddef>
#include <memory>
#include <vector>

namespace guide {

/// The channels of a source as they are chosen from, in groups, and searchable. Immutable; any thread.
class SourceChannelGroups {
  public:
    struct Channel {
        /// In the source.
        QString key;
        QString title;
        /// What is on now.
        QString detail;
        /// Empty in a playlist.
        QString indexTitle;
        PictureKey icon;
        bool hasShows = true;
    };
    /// Indexes of channels(), in ascending order.
    using Places = std::vector<std::size_t>;
    struct Group {
        QString title;
        Places channels;
    };

    /// Sorted by title, those without shows last; a group for each language.
    static std::shared_ptr<const SourceChannelGroups> ofFeed(const std::vector<PreviewChannel>& channels,
                                                             const Device& device);
    /// In the order of the playlist; its groups.
    static std::shared_ptr<const SourceChannelGroups> ofPlaylist(const MatchedPlaylist& playlist,
                                                                 const Device& device);

    const std::vector<Channel>& channels() const { return m_channels; }
    /// The first one has all channels. A channel may be in several of the others.
    const std::vector<Group>& groups() const { return m_groups; }
    /// The channels whose title contains the text, ignoring case and diacritics.
    Places matching(const QString& text) const;

    /// A row for each of the channels.
    std::vector<Section> rows(const Places& places, const QSet<QString>& chosen, const QString& list) const;

  private:
    void addSearchText(const QString& text);

    std::vector<Channel> m_channels;
    std::vector<Group> m_groups;
    /// One for each channel, folded.
    std::vector<QString> m_searchTexts;
};

} // namespace guide

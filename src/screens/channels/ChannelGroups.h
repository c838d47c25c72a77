#pragma once

#include "core/Catalogue.h"
#include "text/display/Alphabet.h"

#include <QLocale>
#include <QString>

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace guide {

/// The channels of a catalogue as they are chosen from: sorted by title, in groups, and searchable.
/// Immutable.
class ChannelGroups {
  public:
    struct Channel {
        ObjectId id;
        /// In the alphabet of the device.
        QString title;
        QString iconName;
        /// The first character of the title as a capital.
        QString indexTitle;
    };
    /// Indexes of channels(), in ascending order.
    using Places = std::vector<std::size_t>;
    struct Group {
        /// The language; empty for the group of all channels.
        QString id;
        QString title;
        Places channels;
    };

    ChannelGroups(SharedCatalogueSnapshot catalogue, const Alphabet& alphabet, const QLocale& locale);

    /// The snapshot that the groups were made from.
    const SharedCatalogueSnapshot& catalogue() const { return m_catalogue; }
    /// Channels with the same index title are adjacent.
    const std::vector<Channel>& channels() const { return m_channels; }
    /// The first one has all channels; then there is one for each language, those of the device first.
    const std::vector<Group>& groups() const { return m_groups; }
    /// The first group when there is none with the id.
    const Group& group(const QString& id) const;

    /// The channels that contain the text in their title or language, ignoring case and diacritics.
    Places matching(const QString& text) const;

  private:
    void makeGroups(const std::vector<QString>& languages, const QLocale& locale);

    const SharedCatalogueSnapshot m_catalogue;
    std::vector<Channel> m_channels;
    /// What a search looks at, one for each channel, folded once.
    std::vector<QString> m_searchTexts;
    std::vector<Group> m_groups;
};

/// How many channels of the group are among the selected ones.
std::size_t selectedCount(const ChannelGroups& groups, const ChannelGroups::Group& group,
                          const std::unordered_set<ObjectId>& selected);

} // namespace guide

#pragma once

#include "parsers/ListDriver.h"
#include "parsers/SourceFormats.h"

#include <QByteArray>

#include <string>
#include <string_view>
#include <vector>

namespace guide::bench {

/// What the reader of a family is called with, and what it has to find. The pages are a site's own, with a
/// broadcast so often that they come to the size asked for, and hold the same at every run.
struct FamilyPages {
    ListingsType type;
    std::vector<LoadItem> items;
    std::vector<QByteArray> pages;
    /// How many shows lie in them for the items.
    std::size_t shows;

    std::size_t size() const;
    std::size_t count(std::string_view marker) const;
    /// What the driver reads out of them, or out of others in their place.
    ParsedLists read() const { return read(pages); }
    ParsedLists read(const std::vector<QByteArray>& others) const;
};

std::size_t showCount(const ParsedLists& lists);

/// At least so many bytes, all pages of the family together.
FamilyPages portNetworkPages(std::size_t size);
/// Nine channels, in a section a day and a channel.
FamilyPages sectionedPalinsesto(std::size_t size);
/// Nine channels, each broadcast in the attributes of one element.
FamilyPages flatPalinsesto(std::size_t size);
FamilyPages barrandovPages(std::size_t size);
FamilyPages digiSportPages(std::size_t size);
FamilyPages jojCinemaPages(std::size_t size);
FamilyPages primaMaxPages(std::size_t size);
FamilyPages hboPages(std::size_t size);
FamilyPages novaPages(std::size_t size);
FamilyPages dolceSportPages(std::size_t size);
FamilyPages cinestarPages(std::size_t size);
FamilyPages comedyCentralPages(std::size_t size);

} // namespace guide::bench

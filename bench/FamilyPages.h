#pragma once

#include "parsers/ListDriver.h"
#include "parsers/SourceFormats.h"

#include <QByteArray>

#include <string>
#include <string_view>
#include <vector>

namespace guide::bench {

/// Input for the reader of a source family, and the result to expect. The pages are those of DemoSites, with
/// as many programmes as the requested size needs; they are the same in every run.
struct FamilyPages {
    ListingsType type;
    std::vector<LoadItem> items;
    std::vector<QByteArray> pages;
    /// Number of shows for the items.
    std::size_t shows;

    std::size_t size() const;
    std::size_t count(std::string_view marker) const;
    /// The driver's result for these pages, or for other pages instead.
    ParsedLists read() const { return read(pages); }
    ParsedLists read(const std::vector<QByteArray>& others) const;
};

std::size_t showCount(const ParsedLists& lists);

/// All pages of a family, at least `size` bytes together.
FamilyPages portNetworkPages(std::size_t size);
/// Nine channels, with one section per day and channel.
FamilyPages sectionedPalinsesto(std::size_t size);
/// Nine channels, each programme in the attributes of one element.
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

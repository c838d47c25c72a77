#pragma once

#include "store/PictureURLs.h"
#include "store/TVEntry.h"
#include "store/TVEntrySupplementalData.h"
#include "text/categories/TVListingsCategory.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace guide {

/// A show that a reader is building; its entry may still change.
struct ExtendedTVEntry {
    std::shared_ptr<TVEntry> basic;
    /// Unset makes a show item of one element.
    std::optional<TVListingsCategory> categories;
    /// Null makes a show item of at most two elements.
    std::shared_ptr<TVEntrySupplementalData> extra;
    /// Empty makes a show item of at most three elements.
    PictureURLs pictures;
};

/// The result of a reader: the shows of each channel in the order of reading.
using ParsedLists = std::unordered_map<ObjectId, std::vector<ExtendedTVEntry>>;

/// One show of a list: the entry, and up to three further parts. Immutable and cheap to copy. The accessors
/// must not be called on a default-constructed item.
class ShowItem {
  public:
    ShowItem() = default;
    explicit ShowItem(std::shared_ptr<const TVEntry> entry,
                      std::optional<TVListingsCategory> categories = std::nullopt,
                      std::shared_ptr<const TVEntrySupplementalData> details = nullptr,
                      PictureURLs pictures = {});
    /// From what a reader has built.
    explicit ShowItem(ExtendedTVEntry show);

    explicit operator bool() const { return m_parts != nullptr; }

    const std::shared_ptr<const TVEntry>& entry() const { return m_parts->entry; }
    const std::optional<TVListingsCategory>& categories() const { return m_parts->categories; }
    const std::shared_ptr<const TVEntrySupplementalData>& details() const { return m_parts->details; }
    /// Any of them can serve as the picture of a row.
    const PictureURLs& pictures() const { return m_parts->pictures; }

    /// 1 to 4: the position of the last part that is present.
    int elementCount() const;

    /// Compares identity, not contents.
    friend bool operator==(const ShowItem&, const ShowItem&) = default;

  private:
    struct Parts {
        std::shared_ptr<const TVEntry> entry;
        std::optional<TVListingsCategory> categories;
        std::shared_ptr<const TVEntrySupplementalData> details;
        PictureURLs pictures;
    };
    std::shared_ptr<const Parts> m_parts;
};

using ShowItems = std::vector<ShowItem>;

/// A list of shows in ascending start time. It never changes: a change replaces it. Null when there is no
/// list.
using ShowList = std::shared_ptr<const ShowItems>;

/// A range of a list, which it keeps alive. Cheap to make and to copy, whatever its length.
class ShowSpan {
  public:
    ShowSpan() = default;
    /// The whole list; an empty span when it is null.
    explicit ShowSpan(ShowList list)
        : m_list(std::move(list))
        , m_count(m_list ? m_list->size() : 0) {}
    explicit ShowSpan(ShowItems items)
        : ShowSpan(std::make_shared<const ShowItems>(std::move(items))) {}
    /// The range must lie within the list.
    ShowSpan(ShowList list, std::size_t first, std::size_t count)
        : m_list(std::move(list))
        , m_first(first)
        , m_count(count) {}

    const ShowItem* begin() const { return m_list ? m_list->data() + m_first : nullptr; }
    const ShowItem* end() const { return begin() + m_count; }
    std::size_t size() const { return m_count; }
    bool empty() const { return m_count == 0; }
    const ShowItem& operator[](std::size_t index) const { return begin()[index]; }

    /// The first `count` shows, or all when there are fewer.
    ShowSpan prefix(std::size_t count) const { return {m_list, m_first, std::min(count, m_count)}; }
    ShowItems items() const { return {begin(), end()}; }

  private:
    ShowList m_list;
    std::size_t m_first = 0;
    std::size_t m_count = 0;
};

/// One channel for which a set of pages is read.
struct LoadItem {
    ObjectId channel;
    QString sourceId;
    QString language;
};

} // namespace guide

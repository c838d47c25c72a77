#pragma once

#include "parsers/markers/MarkerWalk.h"
#include "platform/Clock.h"
#include "platform/Moment.h"
#include "sources/SourceHostTable.h"
#include "store/ListMerge.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"

#include <QByteArray>
#include <QLocale>
#include <QTimeZone>

#include <cstdint>
#include <functional>
#include <vector>

namespace guide {

/// Everything referred to must outlive the driver.
struct ListDriverEnvironment {
    const Clock& clock;
    const Alphabet& alphabet;
    const SourceHostTable& hosts;
    /// Receives the lists that a reader made; the store's merge.
    std::function<MergeResult(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now,
                              ListingsType type, const ReadOutcome& read)>
        merge;
    /// The device's locale.
    QLocale locale = {};
    /// The device's zone, queried at each call. When empty, the system's zone.
    std::function<QTimeZone()> timeZone = {};
    /// In bytes; a quarter of it is the most that the pages and shows of one load may take. 0 means no limit.
    std::uint64_t physicalMemory = 0;
    /// Whether the program is shutting down. Called often, while reading. May be empty.
    std::function<bool()> stopped = {};
};

/// Turns fetched pages into shows. Keeps no state between two calls.
class ListDriver {
  public:
    explicit ListDriver(ListDriverEnvironment environment);
    virtual ~ListDriver() = default;

    /// Reads the pages, UTF-8 in the order of the URLs that the items share, with the reader of the listing
    /// type, and passes the lists to the merge even when nothing was read. Blocks while parsing. Every byte
    /// array must own its bytes. `incomplete` says that pages were cut off or damaged. When the program shuts
    /// down while reading, nothing is merged and the result is empty. Does not throw.
    virtual MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                                Moment now, ListingsType type, bool incomplete = false) const;

    /// Only reads: returns what netList passes to the merge. `trace`, if given, records
    /// the markers that the reader did not find; `outcome`, if given, receives what it found out.
    ParsedLists read(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                     ListingsType type, MarkerTrace* trace = nullptr, ReadOutcome* outcome = nullptr) const;

  private:
    ListDriverEnvironment m_environment;
};

} // namespace guide

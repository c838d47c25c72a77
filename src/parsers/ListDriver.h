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
                              ListingsType type)>
        merge;
    /// The device's locale.
    QLocale locale = {};
    /// The device's zone, queried at each call. When empty, the system's zone.
    std::function<QTimeZone()> timeZone = {};
};

/// Turns fetched pages into shows. Keeps no state between two calls.
class ListDriver {
  public:
    explicit ListDriver(ListDriverEnvironment environment);
    virtual ~ListDriver() = default;

    /// Reads the pages, UTF-8 in the order of the URLs that the items share, with the reader of the listing
    /// type, and passes the lists to the merge even when nothing was read. Blocks while parsing. Every byte
    /// array must own its bytes. Does not throw.
    virtual MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                                Moment now, ListingsType type) const;

    /// Only reads: returns what netList passes to the merge. `trace`, if given, records
    /// the markers that the reader did not find.
    ParsedLists read(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                     ListingsType type, MarkerTrace* trace = nullptr) const;

  private:
    ListDriverEnvironment m_environment;
};

} // namespace guide

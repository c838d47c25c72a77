#pragma once

#include "parsers/MarkerWalk.h"
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

/// What a driver works with; all that it refers to outlives the driver.
struct ListDriverEnvironment {
    const Clock& clock;
    const Alphabet& alphabet;
    const SourceHostTable& hosts;
    /// Takes the lists that a reader made, as the store's merge does.
    std::function<MergeResult(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now,
                              ListingsType type)>
        merge;
    /// The device's.
    QLocale locale = {};
    /// The device's, asked at each call. Empty is the system's.
    std::function<QTimeZone()> timeZone = {};
};

/// The one door through which fetched pages become shows. Keeps nothing between two calls.
class ListDriver {
  public:
    explicit ListDriver(ListDriverEnvironment environment);

    /// Reads the pages, UTF-8 in the order of the URLs that the items share, by the listing type of the
    /// items, and hands the lists to the merge, whatever was read. Blocks for the time of the parse. Every
    /// byte array owns its bytes.
    MergeResult netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                        ListingsType type) const;

    /// The reading alone: what netList hands to the merge. `trace`, where there is one, learns what the
    /// reader looked for in vain.
    ParsedLists read(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages, Moment now,
                     ListingsType type, MarkerTrace* trace = nullptr) const;

  private:
    ListDriverEnvironment m_environment;
};

} // namespace guide

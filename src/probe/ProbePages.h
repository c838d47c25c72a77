#pragma once

#include "parsers/details/PageSource.h"
#include "probe/Command.h"
#include "sources/PageFetcher.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <variant>
#include <vector>

namespace guide::probe {

/// The pages of these files, unpacked where their names say so.
std::variant<std::vector<QByteArray>, Failure> pagesFromFiles(const QStringList& paths,
                                                              const Context& context);

/// A source that answers whatever is asked with these pages, one after the other; it refers to them.
PageSource givenPages(const std::vector<QByteArray>& pages);

/// Calls `use` with a fetcher of the network. `why` learns why a transfer brought nothing.
void withNetwork(const Context& context, QString& why,
                 const std::function<void(const PageFetcher&, const HTTPUserAgent&)>& use);

} // namespace guide::probe

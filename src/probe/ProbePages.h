#pragma once

#include "parsers/details/PageSource.h"
#include "platform/http/HTTPClient.h"
#include "probe/Command.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"
#include "sources/PageFetcher.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <variant>
#include <vector>

namespace guide::probe {

/// Reads pages from files and unpacks them according to their names.
std::variant<std::vector<QByteArray>, Failure> pagesFromFiles(const QStringList& paths,
                                                              const Context& context);

/// A source that returns these pages one after the other, whatever the request. Keeps a reference to the
/// pages.
PageSource givenPages(const std::vector<QByteArray>& pages);

/// Calls `use` with what downloads need.
void withClient(const Context& context,
                const std::function<void(HTTPClient&, NetworkActivity&, const HTTPUserAgent&)>& use);

/// Calls `use` with a fetcher that uses the network. Stores in `why` the reason for a failed transfer.
void withNetwork(const Context& context, QString& why,
                 const std::function<void(const PageFetcher&, const HTTPUserAgent&)>& use);

} // namespace guide::probe

#pragma once

#include "demo/DemoServer.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// Reads the head of a request, without the empty line that ends it. Nothing when it is none.
std::optional<ServedRequest> parsedRequestHead(const QByteArray& head);

/// The head of an answer, empty line included, that announces a body of this length and the connection's end.
QByteArray responseHead(const ServedResponse& response, qsizetype contentLength);

/// The word that goes with a status.
QByteArray reasonPhrase(int status);

} // namespace guide

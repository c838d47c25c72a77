#include "platform/http/HTTPClient.h"

#include <algorithm>

namespace guide {

std::optional<QByteArray> HTTPResponse::header(const QByteArray& name) const {
    const auto found = std::find_if(headers.crbegin(), headers.crend(), [&name](const auto& header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == headers.crend()) {
        return std::nullopt;
    }
    return found->second;
}

} // namespace guide

#pragma once

#include <QByteArrayView>

namespace guide {

/// Whether the text certainly is a valid http or https URL that names a host and that QUrl prints as it is.
/// Takes a fraction of the time of parsing it. False for anything unusual, which QUrl must judge.
bool isPlainWebURL(QByteArrayView text);

} // namespace guide

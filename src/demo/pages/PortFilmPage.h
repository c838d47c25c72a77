#pragma once

#include "demo/pages/SiteRequest.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace guide {

/// The address of a film's page on its site.
QString portFilmPath(const Programme& programme);

/// The page of a film: description, director, and a link to the popups with its picture and trailer.
std::optional<QByteArray> portFilmPage(const SiteRequest& request);

} // namespace guide

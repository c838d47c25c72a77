#pragma once

#include "demo/pages/SiteRequest.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// Generates the page as a site of its family would; nothing for a page that does not exist.
using SitePage = std::optional<QByteArray> (*)(const SiteRequest& request);

std::optional<QByteArray> portNetworkPage(const SiteRequest& request);
/// The popups with a film's picture and trailer, at the root of the server.
std::optional<QByteArray> portPopup(const SiteRequest& request);
std::optional<QByteArray> freePalinsestoPage(const SiteRequest& request);
std::optional<QByteArray> payPalinsestoPage(const SiteRequest& request);
std::optional<QByteArray> dolceSportPage(const SiteRequest& request);
std::optional<QByteArray> comedyCentralPage(const SiteRequest& request);
std::optional<QByteArray> digiSportPage(const SiteRequest& request);
std::optional<QByteArray> jojCinemaPage(const SiteRequest& request);
std::optional<QByteArray> barrandovPage(const SiteRequest& request);
std::optional<QByteArray> hboPage(const SiteRequest& request);
std::optional<QByteArray> primaMaxPage(const SiteRequest& request);
std::optional<QByteArray> novaPage(const SiteRequest& request);
std::optional<QByteArray> cinestarPage(const SiteRequest& request);
/// The archive of past broadcasts, with those of all its channels.
std::optional<QByteArray> archivePage(const SiteRequest& request);

} // namespace guide

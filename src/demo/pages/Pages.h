#pragma once

#include "demo/pages/SiteVisit.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// Each answers a request as a site of its family does; nothing for a page that the site has not.
using SitePage = std::optional<QByteArray> (*)(const SiteVisit& visit);

std::optional<QByteArray> portNetworkPage(const SiteVisit& visit);
std::optional<QByteArray> freePalinsestoPage(const SiteVisit& visit);
std::optional<QByteArray> payPalinsestoPage(const SiteVisit& visit);
std::optional<QByteArray> dolceSportPage(const SiteVisit& visit);
std::optional<QByteArray> comedyCentralPage(const SiteVisit& visit);
std::optional<QByteArray> digiSportPage(const SiteVisit& visit);
std::optional<QByteArray> jojCinemaPage(const SiteVisit& visit);
std::optional<QByteArray> barrandovPage(const SiteVisit& visit);
std::optional<QByteArray> hboPage(const SiteVisit& visit);
std::optional<QByteArray> primaMaxPage(const SiteVisit& visit);
std::optional<QByteArray> novaPage(const SiteVisit& visit);
std::optional<QByteArray> cinestarPage(const SiteVisit& visit);

} // namespace guide

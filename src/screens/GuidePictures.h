#pragma once

#include "core/TVStationIcons.h"
#include "screens/ShowPictureCache.h"
#include "screens/kit/PictureProvider.h"

namespace guide {

/// Resolves the keys of channel icons, of initials, of shows' pictures and of QR codes.
class GuidePictures final : public PictureProvider {
  public:
    /// Both must outlive the provider.
    GuidePictures(TVStationIcons& icons, ShowPictureCache& shows)
        : m_icons(icons)
        , m_shows(shows) {}

    QImage picture(const PictureKey& key, const QSize& pixels) override;

  private:
    TVStationIcons& m_icons;
    ShowPictureCache& m_shows;
};

} // namespace guide

#pragma once

#include <QImage>
#include <QString>

#include <memory>

namespace guide {

/// The channel icons by name, each brought to one size on first use: 50 by 36 points, letterboxed, at the
/// main screen's scale. May be called from any thread.
class TVStationIcons {
  public:
    /// `iconFolder` holds one image file an icon, named by the icon, with or without an image's extension.
    TVStationIcons(const QString& iconFolder, double screenScale);
    ~TVStationIcons();

    /// Whether the folder holds a file for the icon, without a look into it.
    bool hasIconFile(const QString& name);

    /// A null image when the name is empty or no such icon can be read.
    QImage iconNamed(const QString& name);

    /// Drops what is loaded; it comes back icon by icon.
    void dropIcons();

    /// The image at the standard size; a null one stays null.
    static QImage toIcon(const QImage& image, double screenScale);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace guide

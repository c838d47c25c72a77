#pragma once

#include <QImage>
#include <QString>

#include <memory>

namespace guide {

/// The channel icons by name, scaled to one size on first use: 50 by 36 points, letterboxed, at the
/// main screen's scale. Any thread.
class TVStationIcons {
  public:
    /// `iconFolder` holds one image file for each icon, named after it, with or without an image extension.
    TVStationIcons(const QString& iconFolder, double screenScale);
    ~TVStationIcons();

    /// Whether the folder holds a file for the icon; the file is not opened.
    bool hasIconFile(const QString& name);

    /// A null image when the name is empty or no such icon can be read.
    QImage iconNamed(const QString& name);

    /// Drops the loaded images; each is loaded again when it is requested.
    void dropIcons();

    /// The image at the standard size; null for a null image.
    static QImage toIcon(const QImage& image, double screenScale);

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace guide

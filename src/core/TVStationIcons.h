#pragma once

#include <QImage>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace guide {

/// In the folder of caches; holds a picture for each of the user's own channels that has one, named after its
/// id.
inline constexpr QLatin1StringView kOwnIconFolder("channel-icons");

/// The channel icons by name, scaled to one size on first use: 50 by 36 points, letterboxed, at the
/// main screen's scale. Any thread.
class TVStationIcons {
  public:
    /// `iconFolder` holds one image file for each icon, named after it, with or without an image extension;
    /// `ownIconFolder` those of the user's own channels.
    TVStationIcons(const QString& iconFolder, double screenScale, const QString& ownIconFolder = {});
    ~TVStationIcons();

    /// Replaces the titles of the user's own channels, by the names of their icons.
    void setOwnTitles(const std::vector<std::pair<QString, QString>>& titlesByIcon);
    /// The file of the icon has changed.
    void dropIcon(const QString& name);

    /// Whether the folder holds a file for the icon; the file is not opened. True for the icon of an own
    /// channel, which is drawn where there is no file.
    bool hasIconFile(const QString& name);

    /// A null image when the name is empty or no such icon can be read. The icon of an own channel is never
    /// null: without a file it shows the initials of the title.
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

#include "core/TVStationIcons.h"

#include "core/ChannelInitials.h"
#include "core/ObjectId.h"
#include "core/PictureDecoding.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <mutex>
#include <optional>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr double kIconWidth = 50;
constexpr double kIconHeight = 36;
constexpr auto kOwnPrefix = "own/"_L1;

bool isImageExtension(QStringView extension) {
    static constexpr std::array kExtensions{"png"_L1, "webp"_L1, "jpg"_L1, "jpeg"_L1, "gif"_L1, "svg"_L1};
    return std::ranges::any_of(kExtensions, [extension](QLatin1StringView known) {
        return extension.compare(known, Qt::CaseInsensitive) == 0;
    });
}

// Archives made on other systems contain file names in decomposed form.
QString composed(const QString& name) {
    return name.normalized(QString::NormalizationForm_C);
}

// Maps each name that an icon can be requested by, in composed form, to its file.
QHash<QString, QString> iconFilesOf(const QString& folder) {
    QHash<QString, QString> files;
    QHash<QString, QString> byStem;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString name = composed(path.mid(folder.size() + 1));
        files.insert(name, path);
        const qsizetype dot = name.lastIndexOf(u'.');
        if (dot > 0 && isImageExtension(QStringView(name).mid(dot + 1))) {
            QString& chosen = byStem[name.left(dot)];
            if (chosen.isEmpty() || path < chosen) {
                chosen = path;
            }
        }
    }
    for (auto stem = byStem.cbegin(); stem != byStem.cend(); ++stem) {
        if (!files.contains(stem.key())) {
            files.insert(stem.key(), stem.value());
        }
    }
    return files;
}

QSize standardSize(double screenScale) {
    return {std::max(1, static_cast<int>(std::lround(kIconWidth * screenScale))),
            std::max(1, static_cast<int>(std::lround(kIconHeight * screenScale)))};
}

// SVG is rendered at the icon's final size, so that it is sharp at every scale.
QImage readImage(const QString& path, double screenScale) {
    QFile file(path);
    if (file.size() > kChannelIconLimits.bytes || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return decodedPicture(file.read(kChannelIconLimits.bytes), kChannelIconLimits,
                          [screenScale](const QSize& own, bool isDrawing) {
                              return isDrawing ? own.scaled(standardSize(screenScale), Qt::KeepAspectRatio)
                                               : own;
                          });
}

/// The channel whose icon this is; nothing for an icon of the catalogue.
std::optional<QString> ownChannelOf(const QString& name) {
    if (!name.startsWith(kOwnPrefix)) {
        return std::nullopt;
    }
    const QString channel = name.mid(kOwnPrefix.size());
    return ObjectId::isHex(channel) ? std::optional(channel) : std::nullopt;
}

} // namespace

struct TVStationIcons::State {
    QString folder;
    QString ownFolder;
    double screenScale = 1;

    std::mutex guard;
    QHash<QString, QImage> icons;                 // guarded
    std::optional<QHash<QString, QString>> files; // guarded; the folder's files, read on first use
    QHash<QString, QString> ownTitles;            // guarded; by name
    // Guarded; of own titles and files, so that an icon made of old ones is not kept.
    std::uint64_t changes = 0;

    // Requires the guard.
    QString pathOf(const QString& name) {
        if (!files) {
            files = iconFilesOf(folder);
        }
        return files->value(composed(name));
    }

    QImage ownIcon(const QString& channel, const QString& title) const {
        QImage picture;
        if (!ownFolder.isEmpty()) {
            picture = readImage(ownFolder + u'/' + channel, screenScale);
        }
        return picture.isNull() ? channelInitialsIcon(title, standardSize(screenScale)) : picture;
    }
};

TVStationIcons::TVStationIcons(const QString& iconFolder, double screenScale, const QString& ownIconFolder)
    : m_state(std::make_unique<State>()) {
    m_state->folder = QDir::cleanPath(iconFolder);
    m_state->ownFolder = ownIconFolder;
    m_state->screenScale = screenScale;
}

TVStationIcons::~TVStationIcons() = default;

void TVStationIcons::setOwnTitles(const std::vector<std::pair<QString, QString>>& titlesByIcon) {
    QHash<QString, QString> titles;
    titles.reserve(static_cast<qsizetype>(titlesByIcon.size()));
    for (const auto& [name, title] : titlesByIcon) {
        titles.insert(name, title);
    }
    const std::lock_guard lock(m_state->guard);
    m_state->icons.removeIf([&](const QHash<QString, QImage>::iterator icon) {
        return ownChannelOf(icon.key()) && titles.value(icon.key()) != m_state->ownTitles.value(icon.key());
    });
    m_state->ownTitles = std::move(titles);
    ++m_state->changes;
}

void TVStationIcons::dropIcon(const QString& name) {
    const std::lock_guard lock(m_state->guard);
    m_state->icons.remove(name);
    ++m_state->changes;
}

bool TVStationIcons::hasIconFile(const QString& name) {
    if (ownChannelOf(name)) {
        return true;
    }
    const std::lock_guard lock(m_state->guard);
    return !name.isEmpty() && !m_state->pathOf(name).isEmpty();
}

QImage TVStationIcons::iconNamed(const QString& name) {
    if (name.isEmpty()) {
        return {};
    }
    const std::optional<QString> ownChannel = ownChannelOf(name);
    QString path;
    QString title;
    std::uint64_t changes = 0;
    {
        const std::lock_guard lock(m_state->guard);
        const auto known = m_state->icons.constFind(name);
        if (known != m_state->icons.cend()) {
            return *known;
        }
        changes = m_state->changes;
        if (ownChannel) {
            title = m_state->ownTitles.value(name);
        } else {
            path = m_state->pathOf(name);
        }
    }
    if (path.isEmpty() && !ownChannel) {
        return {};
    }
    // Two threads may do this at once for one name; their images are equal.
    const QImage icon =
        toIcon(ownChannel ? m_state->ownIcon(*ownChannel, title) : readImage(path, m_state->screenScale),
               m_state->screenScale);
    if (!icon.isNull()) {
        const std::lock_guard lock(m_state->guard);
        if (!ownChannel || changes == m_state->changes) {
            m_state->icons.insert(name, icon);
        }
    }
    return icon;
}

void TVStationIcons::dropIcons() {
    const std::lock_guard lock(m_state->guard);
    m_state->icons = {};
}

QImage TVStationIcons::toIcon(const QImage& image, double screenScale) {
    if (image.isNull()) {
        return {};
    }
    const QSize standard = standardSize(screenScale);
    if (image.size() == standard) {
        QImage icon = image;
        icon.setDevicePixelRatio(screenScale);
        return icon;
    }
    double width = standard.width();
    double height = image.height() * width / image.width();
    if (height > standard.height()) {
        height = standard.height();
        width = image.width() * height / image.height();
    }
    const QSize fitted(std::max(1, static_cast<int>(std::lround(width))),
                       std::max(1, static_cast<int>(std::lround(height))));

    QImage icon(standard, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QImage scaled = image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                        .scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(1);
    QPainter painter(&icon);
    painter.drawImage((standard.width() - fitted.width()) / 2, (standard.height() - fitted.height()) / 2,
                      scaled);
    painter.end();
    icon.setDevicePixelRatio(screenScale);
    return icon;
}

} // namespace guide

#include "core/own/OwnPictures.h"

#include "core/ChannelIconPicture.h"
#include "core/PictureDecoding.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace guide {

OwnPictures::OwnPictures(QString folder, bool writable)
    : m_folder(std::move(folder))
    , m_writable(writable) {
    const QStringList sources = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : sources) {
        const auto source = OwnSourceId::fromHex(name);
        if (!source) {
            continue;
        }
        if (m_writable) {
            removeStaleReplacements(folderOf(*source));
        }
        const QStringList files = QDir(folderOf(*source)).entryList(QDir::Files);
        for (const QString& file : files) {
            if (ObjectId::isHex(file)) {
                m_pictures.emplace(*source, ObjectId::fromHex(file));
            }
        }
    }
}

QString OwnPictures::filePath(const Picture& picture) const {
    return folderOf(picture.first) + u'/' + picture.second.hex();
}

std::optional<QString> OwnPictures::pathOf(const OwnSourceId& source, const ObjectId& channel) const {
    const std::lock_guard lock(m_guard);
    const Picture picture{source, channel};
    return m_pictures.contains(picture) ? std::optional(filePath(picture)) : std::nullopt;
}

bool OwnPictures::set(const OwnSourceId& source, const ObjectId& channel, const QString& file) {
    const QByteArray picture =
        channelIconPicture(fileContent(file, kChannelIconLimits.bytes).value_or(QByteArray()));
    if (picture.isEmpty() || !m_writable || !QDir().mkpath(folderOf(source)) ||
        !replaceFile(filePath({source, channel}), picture)) {
        return false;
    }
    const std::lock_guard lock(m_guard);
    m_pictures.emplace(source, channel);
    return true;
}

void OwnPictures::remove(const OwnSourceId& source, const ObjectId& channel) {
    {
        const std::lock_guard lock(m_guard);
        m_pictures.erase({source, channel});
    }
    QFile::remove(filePath({source, channel}));
}

void OwnPictures::removeAll(const OwnSourceId& source) {
    {
        const std::lock_guard lock(m_guard);
        std::erase_if(m_pictures, [&source](const Picture& picture) { return picture.first == source; });
    }
    QDir(folderOf(source)).removeRecursively();
}

} // namespace guide

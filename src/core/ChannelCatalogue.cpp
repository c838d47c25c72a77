#include "core/ChannelCatalogue.h"

#include "platform/Archive.h"
#include "platform/FileReplacement.h"
#include "platform/PropertyList.h"

#include <QCborArray>
#include <QCborMap>
#include <QDebug>
#include <QFile>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString channelsKey() {
    return u"Channels"_s;
}

std::optional<QByteArray> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

QCborValue archiveRoot(const std::vector<ChannelDictionary>& channels) {
    QCborArray rows;
    for (const ChannelDictionary& channel : channels) {
        QCborMap row;
        for (auto entry = channel.cbegin(); entry != channel.cend(); ++entry) {
            row.insert(entry.key(), entry.value());
        }
        rows.append(row);
    }
    return QCborMap{{channelsKey(), rows}};
}

// Just newer than the list that it is made of: an update of the program brings a list that is newer than that
// one, but often older than the day on which this archive is written. Dates of file systems can be coarse.
std::optional<Moment> dateOfArchive(const std::optional<Moment>& supplied) {
    constexpr std::chrono::seconds kCoarsestDate{2};
    return supplied ? std::optional(*supplied + kCoarsestDate) : std::nullopt;
}

std::optional<std::vector<ChannelDictionary>> channelsOfArchive(const QString& path) {
    const std::optional<QByteArray> content = contentOf(path);
    const std::optional<QCborValue> root = content ? unarchivedRoot(*content) : std::nullopt;
    const QCborValue rows = root ? (*root)[channelsKey()] : QCborValue();
    if (!rows.isArray()) {
        return std::nullopt;
    }
    std::vector<ChannelDictionary> channels;
    const QCborArray array = rows.toArray();
    for (const auto& row : array) {
        const QCborMap values = row.toMap();
        ChannelDictionary channel;
        for (const auto& [key, value] : values) {
            if (key.isString() && value.isString()) {
                channel.insert(key.toString(), value.toString());
            }
        }
        channels.push_back(std::move(channel));
    }
    return channels;
}

} // namespace

QString catalogueArchivePath(const QString& cachesFolder) {
    return cachesFolder + u"/5b65e9d23afbe36684bdfe2c.plist"_s;
}

std::optional<std::vector<ChannelDictionary>> channelsOfPropertyList(const QString& path) {
    const std::optional<QByteArray> content = contentOf(path);
    const std::optional<QVariant> root = content ? propertyListFromData(*content) : std::nullopt;
    const QVariant rows = root ? root->toMap().value(channelsKey()) : QVariant();
    if (rows.typeId() != QMetaType::QVariantList) {
        return std::nullopt;
    }
    std::vector<ChannelDictionary> channels;
    const QVariantList list = rows.toList();
    for (const QVariant& row : list) {
        const QVariantMap values = row.toMap();
        ChannelDictionary channel;
        for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
            if (entry->typeId() == QMetaType::QString) {
                channel.insert(entry.key(), entry->toString());
            }
        }
        channels.push_back(std::move(channel));
    }
    return channels;
}

std::vector<ChannelDictionary> catalogueChannels(const QString& propertyListPath, const QString& archivePath,
                                                 const SupportedChannelTypes& types, const HasIcon& hasIcon) {
    const std::optional<Moment> archived = fileModificationDate(archivePath);
    const std::optional<Moment> supplied = fileModificationDate(propertyListPath);
    if (archived && supplied && *archived > *supplied) {
        if (std::optional<std::vector<ChannelDictionary>> channels = channelsOfArchive(archivePath)) {
            return *std::move(channels);
        }
        qWarning().noquote() << "ChannelCatalogue: cannot read" << archivePath;
    }
    if (const std::optional<std::vector<ChannelDictionary>> all = channelsOfPropertyList(propertyListPath)) {
        std::vector<ChannelDictionary> channels = filteredChannels(*all, types, hasIcon);
        // Kept only where there is something: what found no icon at all deserves another look.
        if (!channels.empty() &&
            !replaceFile(archivePath, archivedData(archiveRoot(channels)), dateOfArchive(supplied))) {
            qWarning().noquote() << "ChannelCatalogue: cannot write" << archivePath;
        }
        return channels;
    }
    qWarning().noquote() << "ChannelCatalogue: cannot read" << propertyListPath;
    // An old catalogue is better than none, which would cost the user the selection.
    return channelsOfArchive(archivePath).value_or(std::vector<ChannelDictionary>());
}

SharedChannelData makeChannelData(const std::vector<ChannelDictionary>& channels) {
    auto data = std::make_shared<ChannelData>();
    data->reserve(channels.size());
    for (const ChannelDictionary& channel : channels) {
        if (const std::optional<QString> location = channelValue(channel, u"Location"_s)) {
            data->insert_or_assign(ObjectId::fromHex(*location), channel);
        }
    }
    return data;
}

} // namespace guide

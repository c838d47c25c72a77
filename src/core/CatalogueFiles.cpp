#include "core/CatalogueFiles.h"

#include "platform/archive/Archive.h"
#include "platform/archive/PropertyList.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QCborMap>
#include <QDebug>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString channelsKey() {
    return u"Channels"_s;
}

std::optional<QByteArray> contentOf(const QString& path) {
    return fileContent(path, 64 << 20);
}

QCborValue archiveRoot(const std::vector<CatalogueRow>& rows) {
    QCborArray array;
    for (const CatalogueRow& row : rows) {
        QCborMap values;
        for (const auto& [key, value] : row.values.asKeyValueRange()) {
            values.insert(key, value);
        }
        array.append(values);
    }
    return QCborMap{{channelsKey(), array}};
}

std::vector<CatalogueChannel> channelsOf(const std::vector<CatalogueRow>& rows) {
    std::vector<CatalogueChannel> channels;
    channels.reserve(rows.size());
    for (const CatalogueRow& row : rows) {
        channels.push_back(row.channel);
    }
    return channels;
}

// The archive is dated slightly after the list that it was made from. The list of a program update is newer
// than the previous list but often older than the day on which this archive is written. File systems may
// round dates to two seconds.
std::optional<Moment> dateOfArchive(const std::optional<Moment>& supplied) {
    constexpr std::chrono::seconds kCoarsestDate{2};
    return supplied ? std::optional(*supplied + kCoarsestDate) : std::nullopt;
}

std::optional<std::vector<CatalogueChannel>> channelsOfArchive(const QString& path) {
    const std::optional<QByteArray> content = contentOf(path);
    const std::optional<QCborValue> root = content ? unarchivedRoot(*content) : std::nullopt;
    const QCborValue rows = root ? (*root)[channelsKey()] : QCborValue();
    if (!rows.isArray()) {
        return std::nullopt;
    }
    std::vector<CatalogueChannel> channels;
    const QCborArray array = rows.toArray();
    for (const auto& row : array) {
        const QCborMap archived = row.toMap();
        ChannelDictionary values;
        for (const auto& [key, value] : archived) {
            if (key.isString() && value.isString()) {
                values.insert(key.toString(), value.toString());
            }
        }
        if (std::optional<CatalogueRow> made = catalogueRow(std::move(values))) {
            channels.push_back(std::move(made->channel));
        }
    }
    return channels;
}

bool isCatalogueKey(const QString& key) {
    static constexpr std::array kKeys{"Location"_L1, "Title"_L1, "Language"_L1, "Icon"_L1, "Stream"_L1};
    return std::ranges::find(kKeys, key) != kKeys.end() ||
           (key.size() == 9 && key.startsWith("Location"_L1) && key[8] >= u'1' && key[8] <= u'7');
}

std::optional<CatalogueRow> suppliedRow(const QVariant& channel, RowTally& tally) {
    if (channel.typeId() != QMetaType::QVariantMap) {
        tally.leaveOut(RowProblem::Type);
        return std::nullopt;
    }
    bool hasOtherType = false;
    ChannelDictionary values;
    const QVariantMap supplied = channel.toMap();
    for (const auto& [key, value] : supplied.asKeyValueRange()) {
        if (value.typeId() == QMetaType::QString) {
            values.insert(key, value.toString());
        } else {
            hasOtherType = hasOtherType || isCatalogueKey(key);
        }
    }
    if (!hasOtherType) {
        return catalogueRow(std::move(values), &tally);
    }
    std::optional<CatalogueRow> row = catalogueRow(std::move(values));
    if (row) {
        tally.accept(RowProblem::Type);
    } else {
        tally.leaveOut(RowProblem::Type);
    }
    return row;
}

} // namespace

QString catalogueArchivePath(const QString& cachesFolder) {
    return cachesFolder + u"/5b65e9d23afbe36684bdfe2c.plist"_s;
}

std::optional<std::vector<CatalogueRow>> rowsOfPropertyList(const QString& path, RowTally* tally) {
    const std::optional<QByteArray> content = contentOf(path);
    const std::optional<QVariant> root = content ? propertyListFromData(*content) : std::nullopt;
    const QVariant channels = root ? root->toMap().value(channelsKey()) : QVariant();
    if (channels.typeId() != QMetaType::QVariantList) {
        return std::nullopt;
    }
    RowTally ignored;
    RowTally& counts = tally ? *tally : ignored;
    std::vector<CatalogueRow> rows;
    const QVariantList list = channels.toList();
    for (const QVariant& channel : list) {
        counts.addRow();
        if (std::optional<CatalogueRow> row = suppliedRow(channel, counts)) {
            rows.push_back(*std::move(row));
        }
    }
    return rows;
}

LoadedCatalogue loadedCatalogue(const QString& propertyListPath, const QString& archivePath,
                                const SupportedChannelTypes& types, const HasIcon& hasIcon) {
    const std::optional<Moment> archived = fileModificationDate(archivePath);
    const std::optional<Moment> supplied = fileModificationDate(propertyListPath);
    if (archived && supplied && *archived > *supplied) {
        if (std::optional<std::vector<CatalogueChannel>> channels = channelsOfArchive(archivePath)) {
            return {*std::move(channels)};
        }
        qWarning().noquote() << "Catalogue: cannot read" << archivePath;
    }
    RowTally tally;
    if (std::optional<std::vector<CatalogueRow>> all = rowsOfPropertyList(propertyListPath, &tally)) {
        const std::vector<CatalogueRow> rows = filteredChannels(*std::move(all), types, hasIcon, &tally);
        // An empty result is not archived: when no icon was found at all, the next start tries again.
        if (!rows.empty() &&
            !replaceFile(archivePath, archivedData(archiveRoot(rows)), dateOfArchive(supplied))) {
            qWarning().noquote() << "Catalogue: cannot write" << archivePath;
        }
        const QString leftOut = tally.rows() == 0 ? u"no channels"_s : tally.summary(u"channels"_s);
        return {channelsOf(rows), leftOut.isEmpty() ? QString() : propertyListPath + u": "_s + leftOut};
    }
    const QString problem =
        supplied ? u"%1 cannot be read as a catalogue, a property list with an array \"Channels\""_s
                 : u"the catalogue %1 cannot be found"_s;
    // An old catalogue is better than an empty one, which would cost the user the selection.
    return {channelsOfArchive(archivePath).value_or(std::vector<CatalogueChannel>()),
            problem.arg(propertyListPath)};
}

} // namespace guide

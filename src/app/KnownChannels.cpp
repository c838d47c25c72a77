#include "app/KnownChannels.h"

#include "core/SelectionFile.h"
#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>

#include <algorithm>
#include <iterator>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMostBytes = 4 << 20;

QString pathIn(const Folders& folders) {
    return folders.documents + u"/knownChannels.plist"_s;
}

} // namespace

std::optional<std::vector<ObjectId>> knownChannels(const Folders& folders) {
    const std::optional<QByteArray> content = fileContent(pathIn(folders), kMostBytes);
    return content ? selectionOfFile(*content) : std::nullopt;
}

void keepKnownChannels(const Folders& folders, const std::vector<CatalogueChannel>& supplied) {
    std::vector<ObjectId> channels;
    channels.reserve(supplied.size());
    std::ranges::transform(supplied, std::back_inserter(channels), &CatalogueChannel::id);
    if (!folders.writable || knownChannels(folders) == channels) {
        return;
    }
    if (!replaceFile(pathIn(folders), archivedData(selectionValue(channels)))) {
        qWarning().noquote() << "Cannot write" << pathIn(folders);
    }
}

} // namespace guide

#include "platform/files/PlayableChannels.h"

#include "platform/files/FileContent.h"

namespace guide::PlayableChannels {

namespace {

QByteArray lineOf(const QString& title) {
    return title.simplified().toUtf8();
}

} // namespace

QByteArray text(const QStringList& titles) {
    QByteArray text;
    for (const QString& title : titles) {
        const QByteArray line = lineOf(title);
        if (!line.isEmpty() && text.size() + line.size() < kLargestText) {
            text += line + '\n';
        }
    }
    return text;
}

bool contains(const QString& path, const QString& title) {
    const QByteArray line = lineOf(title);
    return !line.isEmpty() &&
           ('\n' + fileContent(path, kLargestText).value_or(QByteArray())).contains('\n' + line + '\n');
}

} // namespace guide::PlayableChannels

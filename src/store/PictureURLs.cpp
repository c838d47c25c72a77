#include "store/PictureURLs.h"

#include "store/PlainWebURL.h"

#include <utility>

namespace guide {

PictureURLs::PictureURLs(std::initializer_list<QUrl> urls) {
    for (const QUrl& url : urls) {
        insert(url);
    }
}

void PictureURLs::insert(const QUrl& url) {
    insertNew(url.toEncoded());
}

void PictureURLs::insertEncoded(QByteArrayView text) {
    if (!insertPlain(text)) {
        insert(QUrl::fromEncoded(text.toByteArray()));
    }
}

bool PictureURLs::insertPlain(QByteArrayView text) {
    const bool isPlain = isPlainWebURL(text);
    if (isPlain) {
        insertNew(text.toByteArray());
    }
    return isPlain;
}

std::vector<QUrl> PictureURLs::urls() const {
    std::vector<QUrl> urls;
    for (const QByteArray& each : m_encoded) {
        urls.push_back(QUrl::fromEncoded(each));
    }
    return urls;
}

void PictureURLs::insertNew(QByteArray encoded) {
    if (m_encoded.size() >= kMost || m_encoded.contains(encoded)) {
        return;
    }
    if (m_encoded.isEmpty()) {
        // Most shows have one picture; without this there would be room for more.
        m_encoded.reserve(1);
    }
    m_encoded.append(std::move(encoded));
}

} // namespace guide

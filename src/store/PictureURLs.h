#pragma once

#include <QByteArrayList>
#include <QByteArrayView>
#include <QUrl>

#include <initializer_list>
#include <vector>

namespace guide {

/// The addresses of a show's pictures: each once, in the order of insertion. They are encoded texts, which in
/// a long list take a fraction of the memory of parsed URLs. Cheap to copy; an empty one allocates nothing.
class PictureURLs {
  public:
    /// No show has nearly as many; further ones are ignored.
    static constexpr qsizetype kMost = 100;

    PictureURLs() = default;
    PictureURLs(std::initializer_list<QUrl> urls);

    void insert(const QUrl& url);
    /// Inserts the URL that QUrl::fromEncoded reads from the text.
    void insertEncoded(QByteArrayView text);
    /// Inserts the text if isPlainWebURL accepts it; otherwise false, and nothing changes.
    bool insertPlain(QByteArrayView text);

    bool isEmpty() const { return m_encoded.isEmpty(); }
    qsizetype size() const { return m_encoded.size(); }
    /// As QUrl::toEncoded returns them.
    const QByteArrayList& encoded() const { return m_encoded; }
    /// There must be one.
    QUrl first() const { return QUrl::fromEncoded(m_encoded.first()); }
    std::vector<QUrl> urls() const;

    friend bool operator==(const PictureURLs&, const PictureURLs&) = default;

  private:
    void insertNew(QByteArray encoded);

    QByteArrayList m_encoded;
};

} // namespace guide

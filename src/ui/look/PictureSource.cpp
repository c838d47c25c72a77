#include "ui/look/PictureSource.h"

#include "ui/look/PictureUrl.h"

#include <QQuickTextureFactory>

#include <utility>

namespace guide {

namespace {

constexpr int kThreads = 2;

class Response : public QQuickImageResponse {
  public:
    QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    /// A missing picture leaves its item empty; the engine would log an error for a null image.
    void finish(QImage image) {
        m_image = image.isNull() ? emptyPicture() : std::move(image);
        Q_EMIT finished();
    }

  private:
    static QImage emptyPicture() {
        QImage empty(1, 1, QImage::Format_ARGB32_Premultiplied);
        empty.fill(Qt::transparent);
        return empty;
    }

    QImage m_image;
};

} // namespace

PictureSource::PictureSource(PictureProvider* provider)
    : m_provider(provider) {
    m_threads.setMaxThreadCount(kThreads);
}

PictureSource::~PictureSource() {
    m_threads.clear();
    m_threads.waitForDone();
}

QQuickImageResponse* PictureSource::requestImageResponse(const QString& id, const QSize& requestedSize) {
    auto* response = new Response;
    m_threads.start([provider = m_provider, key = pictureKeyOf(id), requestedSize, response] {
        response->finish(provider && !key.empty() ? provider->picture(key, requestedSize) : QImage());
    });
    return response;
}

} // namespace guide

#pragma once

#include "screens/kit/PictureProvider.h"

#include <QQuickAsyncImageProvider>
#include <QThreadPool>

namespace guide {

/// Resolves `image://guide/…` through the kit's provider, on its own threads.
class PictureSource : public QQuickAsyncImageProvider {
  public:
    /// The provider must outlive the source; null for no pictures.
    explicit PictureSource(PictureProvider* provider);
    /// Waits for the pictures that are being loaded.
    ~PictureSource() override;

    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

  private:
    PictureProvider* const m_provider;
    QThreadPool m_threads;
};

} // namespace guide

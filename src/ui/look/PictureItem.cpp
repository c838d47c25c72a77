#include "ui/look/PictureItem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <memory>

namespace guide {

void PictureItem::setPicture(const QImage& picture) {
    if (picture.cacheKey() != m_picture.cacheKey()) {
        m_picture = picture;
        m_changed = true;
        update();
        Q_EMIT pictureChanged();
    }
}

QSGNode* PictureItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
    std::unique_ptr<QSGImageNode> drawn(static_cast<QSGImageNode*>(node));
    if (m_picture.isNull() || width() <= 0 || height() <= 0) {
        return nullptr;
    }
    if (!drawn) {
        drawn.reset(window()->createImageNode());
        drawn->setOwnsTexture(true);
        drawn->setFiltering(QSGTexture::Linear);
        m_changed = true;
    }
    if (m_changed) {
        drawn->setTexture(window()->createTextureFromImage(m_picture));
        m_changed = false;
    }
    const QSizeF fitted = QSizeF(m_picture.size()).scaled(size(), Qt::KeepAspectRatio);
    drawn->setRect(QRectF(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted));
    return drawn.release();
}

} // namespace guide

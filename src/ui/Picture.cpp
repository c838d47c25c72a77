#include "ui/Picture.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <memory>

namespace guide {

Picture::Picture(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void Picture::setImage(const QImage& image) {
    if (image.cacheKey() != m_image.cacheKey()) {
        m_image = image;
        m_newImage = true;
        update();
        Q_EMIT imageChanged();
    }
}

QSGNode* Picture::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
    auto* node = static_cast<QSGImageNode*>(old);
    if (m_image.isNull() || width() <= 0 || height() <= 0) {
        delete node;
        m_newImage = true;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_newImage = true;
    }
    if (m_newImage) {
        node->setTexture(window()->createTextureFromImage(m_image));
        m_newImage = false;
    }
    const QSizeF fitted = QSizeF(m_image.size()).scaled(size(), Qt::KeepAspectRatio);
    node->setRect(QRectF(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted));
    return node;
}

void Picture::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        update();
    }
}

} // namespace guide

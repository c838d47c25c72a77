#pragma once

#include <QImage>
#include <QQuickItem>

namespace guide {

/// An image as it is in memory, fitted into the item and centred.
class Picture : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)

  public:
    explicit Picture(QQuickItem* parent = nullptr);

    QImage image() const { return m_image; }
    void setImage(const QImage& image);

  Q_SIGNALS:
    void imageChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

  private:
    QImage m_image;
    bool m_newImage = false;
};

} // namespace guide

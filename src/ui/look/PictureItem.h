#pragma once

#include <QImage>
#include <QQuickItem>

namespace guide {

/// Draws an image as large as it fits into the item, centred.
class PictureItem : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QImage picture READ picture WRITE setPicture NOTIFY pictureChanged)
    Q_PROPERTY(bool empty READ empty NOTIFY pictureChanged)

  public:
    explicit PictureItem(QQuickItem* parent = nullptr)
        : QQuickItem(parent) {
        setFlag(ItemHasContents);
    }

    const QImage& picture() const { return m_picture; }
    void setPicture(const QImage& picture);
    bool empty() const { return m_picture.isNull(); }

  Q_SIGNALS:
    void pictureChanged();

  protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

  private:
    QImage m_picture;
    bool m_changed = false;
};

} // namespace guide

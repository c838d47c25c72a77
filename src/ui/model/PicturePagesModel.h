#pragma once

#include "screens/kit/PicturePagesContent.h"

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QSizeF>

namespace guide {

/// Pictures, one a page, for QML: a list of images, null while they are loading.
class PicturePagesModel : public QAbstractListModel, private PicturePagesObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page")

    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(int currentPage READ currentPage NOTIFY currentPageUpdated)

  public:
    enum Role { PictureRole = Qt::UserRole };

    explicit PicturePagesModel(PicturePagesContent& content)
        : m_content(content) {
        m_content.setObserver(this);
    }
    ~PicturePagesModel() override { m_content.setObserver(nullptr); }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_content.pageCount();
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return index.isValid() && index.row() < m_content.pageCount() && role == PictureRole
                   ? QVariant::fromValue(m_content.picture(index.row()))
                   : QVariant();
    }
    QHash<int, QByteArray> roleNames() const override { return {{PictureRole, "picture"}}; }

    int count() const { return m_content.pageCount(); }
    int currentPage() const { return m_content.currentPage(); }

    Q_INVOKABLE void showPage(int page) { m_content.showPage(page); }
    /// The room for a picture, in points.
    Q_INVOKABLE void setRoom(const QSizeF& size) { m_content.setRoom(size); }
    Q_INVOKABLE void leave() { m_content.leave(); }

  Q_SIGNALS:
    void currentPageUpdated();

  private:
    void pageChanged(int page) override { Q_EMIT dataChanged(index(page), index(page)); }
    void currentPageChanged() override { Q_EMIT currentPageUpdated(); }

    PicturePagesContent& m_content;
};

} // namespace guide

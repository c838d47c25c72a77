#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace guide {

/// A symbol drawn in one colour, as large as its item.
class Glyph : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(Symbol symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

  public:
    /// The first ones are those of the tabs, in their order.
    enum Symbol {
        AllShows,
        Currently,
        Categories,
        Search,
        Schedule,
        SelectedChannels,
        Refresh,
        Play,
        Back,
        Disclosure,
        Activity,
    };
    Q_ENUM(Symbol)

    explicit Glyph(QQuickItem* parent = nullptr);

    Symbol symbol() const { return m_symbol; }
    void setSymbol(Symbol symbol);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void symbolChanged();
    void colorChanged();

  private:
    Symbol m_symbol = Currently;
    QColor m_color;
};

} // namespace guide

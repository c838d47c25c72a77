#include "TextFit.h"

#include <QHash>
#include <QQuickWindow>

#include <algorithm>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

/// For fractions of a pixel.
constexpr double kTolerance = 1.5;

/// Where the glyphs are, in the scene.
QRectF drawnRect(const QQuickItem& text) {
    const double width = text.property("contentWidth").toDouble();
    const double height = text.property("contentHeight").toDouble();
    const int across = text.property("effectiveHorizontalAlignment").toInt();
    const int down = text.property("verticalAlignment").toInt();
    const double x = across & Qt::AlignRight     ? text.width() - width
                     : across & Qt::AlignHCenter ? (text.width() - width) / 2
                                                 : 0;
    const double y = down & Qt::AlignBottom    ? text.height() - height
                     : down & Qt::AlignVCenter ? (text.height() - height) / 2
                                               : 0;
    return text.mapRectToScene(QRectF(x, y, width, height));
}

bool has(const QQuickItem& item, const char* property) {
    return item.metaObject()->indexOfProperty(property) >= 0;
}

QRectF sceneRect(const QQuickItem& item) {
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

bool isWithin(const QRectF& inner, const QRectF& outer) {
    return outer.adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance).contains(inner);
}

/// What surrounds an item.
struct Surroundings {
    const QQuickItem* row = nullptr;
    /// The row's body or the button.
    const QQuickItem* frame = nullptr;
    /// Whether what is below the window's edge can be scrolled to.
    bool scrolls = false;
};

class Search {
  public:
    explicit Search(const QQuickItem& root)
        : m_window(sceneRect(root)) {
        visit(root, {});
        for (const Texts& texts : std::as_const(m_rows)) {
            findOverlaps(texts);
        }
        m_found.sort();
    }
    const QStringList& found() const { return m_found; }

  private:
    struct Drawn {
        QString text;
        QRectF rect;
    };
    struct Texts {
        QList<Drawn> texts;
        QList<QRectF> symbols;
    };

    void visit(const QQuickItem& item, Surroundings around) {
        if (!item.isVisible() || item.width() <= 0 || item.height() <= 0 || item.objectName() == "marks"_L1) {
            return;
        }
        // A row that is swiped aside.
        if (has(item, "selectable") && item.x() < 0) {
            return;
        }
        if (item.inherits("QQuickImage") && around.row && !item.property("source").toUrl().isEmpty()) {
            m_rows[around.row].symbols << sceneRect(item);
        }
        if (item.opacity() == 0) {
            return;
        }
        if (has(item, "contentY") || has(item, "pathItemCount")) {
            around.scrolls = true;
            around.frame = nullptr;
        }
        // A row, or a screen's bar.
        if (has(item, "bodyTop") || has(item, "titleBelow")) {
            around.row = &item;
        }
        const bool isBody = around.row && around.row->property("body").value<QQuickItem*>() == &item;
        if (isBody || has(item, "visualFocus")) {
            around.frame = &item;
        }
        if (item.inherits("guide::Glyph") && around.row) {
            m_rows[around.row].symbols << sceneRect(item);
        }
        if (item.inherits("QQuickText") && !item.property("text").toString().trimmed().isEmpty()) {
            look(item, around);
        }
        for (const QQuickItem* child : item.childItems()) {
            visit(*child, around);
        }
    }

    void look(const QQuickItem& item, const Surroundings& around) {
        const QString text = item.property("text").toString().left(60);
        const QRectF rect = drawnRect(item);
        if (item.property("truncated").toBool() && item.objectName() != "excerpt"_L1) {
            m_found << u"cut: "_s + text;
        }
        if (!isWithin(rect, sceneRect(item))) {
            m_found << u"larger than its place: "_s + text;
        }
        if (rect.left() < m_window.left() - kTolerance || rect.right() > m_window.right() + kTolerance ||
            (!around.scrolls && !isWithin(rect, m_window))) {
            m_found << u"outside the window: "_s + text;
        }
        if (around.frame && !isWithin(rect, sceneRect(*around.frame))) {
            m_found << u"outside its row or button: "_s + text;
        }
        // Panels cover what is below them.
        if (around.row) {
            m_rows[around.row].texts << Drawn{text, rect};
        }
    }

    void findOverlaps(const Texts& row) {
        const auto overlap = [](const QRectF& one, const QRectF& other) {
            const QRectF common = one & other;
            return common.width() > kTolerance && common.height() > kTolerance;
        };
        for (auto text = row.texts.cbegin(); text != row.texts.cend(); ++text) {
            const auto over = std::find_if(text + 1, row.texts.cend(), [&](const Drawn& other) {
                return overlap(text->rect, other.rect);
            });
            if (over != row.texts.cend()) {
                m_found << u"over each other: "_s + text->text + u" / "_s + over->text;
            }
            if (std::ranges::any_of(row.symbols,
                                    [&](const QRectF& symbol) { return overlap(text->rect, symbol); })) {
                m_found << u"over a symbol: "_s + text->text;
            }
        }
    }

    const QRectF m_window;
    QHash<const QQuickItem*, Texts> m_rows;
    QStringList m_found;
};

} // namespace

QStringList misfits(const QQuickItem& root) {
    return Search(root).found();
}

} // namespace guide::test

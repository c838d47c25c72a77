#include "TextFit.h"

#include <QHash>
#include <QQuickWindow>

#include <algorithm>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

/// For fractions of a pixel.
constexpr double kTolerance = 1.5;

struct DrawnText {
    QString text;
    QRectF rect;
    bool cut = false;
    bool tooLarge = false;
};

/// Where the glyphs are, in the scene.
DrawnText drawn(const QQuickItem& item) {
    const QString text = item.property("text").toString().left(60);
    const double width = item.property("contentWidth").toDouble();
    const double height = item.property("contentHeight").toDouble();
    const int across = item.property("effectiveHorizontalAlignment").toInt();
    const int down = item.property("verticalAlignment").toInt();
    const double x = across & Qt::AlignRight     ? item.width() - width
                     : across & Qt::AlignHCenter ? (item.width() - width) / 2
                                                 : 0;
    const double y = down & Qt::AlignBottom    ? item.height() - height
                     : down & Qt::AlignVCenter ? (item.height() - height) / 2
                                               : 0;
    return {text, item.mapRectToScene(QRectF(x, y, width, height)),
            item.property("truncated").toBool() && item.objectName() != "excerpt"_L1,
            width > item.width() + kTolerance || height > item.height() + kTolerance};
}

/// Texts by the row that they are part of; by null those of the bars and panels.
using TextsByRow = QHash<const QQuickItem*, QList<DrawnText>>;

void collect(const QQuickItem& item, const QQuickItem* row, TextsByRow& texts) {
    if (!item.isVisible() || item.opacity() == 0 || item.width() <= 0 || item.height() <= 0) {
        return;
    }
    if (item.metaObject()->indexOfProperty("bodyTop") >= 0) {
        row = &item;
    }
    if (item.inherits("QQuickText") && !item.property("text").toString().trimmed().isEmpty()) {
        texts[row].append(drawn(item));
    }
    for (const QQuickItem* child : item.childItems()) {
        collect(*child, row, texts);
    }
}

} // namespace

QStringList misfits(const QQuickItem& root) {
    TextsByRow rows;
    collect(root, nullptr, rows);
    QStringList found;
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        for (auto text = row->cbegin(); text != row->cend(); ++text) {
            if (text->cut) {
                found << u"cut: "_s + text->text;
            }
            if (text->tooLarge) {
                found << u"larger than its place: "_s + text->text;
            }
            if (text->rect.left() < -kTolerance || text->rect.right() > root.width() + kTolerance) {
                found << u"beyond the window: "_s + text->text;
            }
            if (!row.key()) {
                continue; // Panels cover bars.
            }
            const auto over = std::find_if(text + 1, row->cend(), [&text](const DrawnText& other) {
                const QRectF common = text->rect & other.rect;
                return common.width() > kTolerance && common.height() > kTolerance;
            });
            if (over != row->cend()) {
                found << u"over each other: "_s + text->text + u" / "_s + over->text;
            }
        }
    }
    found.sort();
    return found;
}

} // namespace guide::test

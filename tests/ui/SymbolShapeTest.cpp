#include "ui/look/SymbolShape.h"

#include "ui/look/Glyph.h"

#include <QMetaEnum>

#include <gtest/gtest.h>
#include <map>

namespace guide::test {
namespace {

TEST(SymbolShapes, EverySymbolIsDrawnOnceAndWithinItsSquare) {
    std::map<int, int> counts;
    for (const std::span<const SymbolShape> shapes : {controlShapes(), categoryShapes()}) {
        for (const SymbolShape& shape : shapes) {
            SCOPED_TRACE(shape.symbol);
            ++counts[shape.symbol];
            QPainterPath path;
            shape.addTo(path);
            EXPECT_FALSE(path.isEmpty());
            EXPECT_TRUE(QRectF(0, 0, SymbolShape::kSide, SymbolShape::kSide).contains(path.boundingRect()));
        }
    }
    const QMetaEnum symbols = QMetaEnum::fromType<Glyph::Symbol>();
    for (int index = 0; index < symbols.keyCount(); ++index) {
        EXPECT_EQ(counts[symbols.value(index)], 1) << symbols.key(index);
    }
}

} // namespace
} // namespace guide::test

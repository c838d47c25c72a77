#include "text/search/FoldedText.h"

#include "text/search/FoldTable.h"

namespace guide {

QString foldedText(QStringView text) {
    return FoldTable::of(FoldMode::Lookalikes).folded(text);
}

} // namespace guide

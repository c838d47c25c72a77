#include "text/FoldedText.h"

#include "text/FoldTable.h"

namespace guide {

QString foldedText(QStringView text) {
    return FoldTable::of(FoldMode::CaseAndDiacritics).folded(text);
}

} // namespace guide

#include "text/FoldedText.h"

#include "text/FoldTable.h"

namespace guide {

QString foldedText(QStringView text) {
    const FoldTable& table = FoldTable::of(FoldMode::CaseAndDiacritics);
    QString folded(text.size(), Qt::Uninitialized);
    QChar* to = folded.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = table[text[i].unicode()];
        if (unit == FoldTable::kSeveral) {
            // From here on the folded text may be longer than the text: the slow way to the end.
            folded.truncate(to - folded.constData());
            while (i < text.size()) {
                table.append(takeCodePoint(text, i), folded);
            }
            return folded;
        }
        if (unit != FoldTable::kDropped) {
            *to++ = QChar(unit);
        }
    }
    folded.truncate(to - folded.constData());
    return folded;
}

} // namespace guide

#include "parsers/formats/EntryClassifier.h"

#include "text/categories/ShowClassifier.h"

namespace guide {

TVListingsCategory classifyEntry(const TVEntry& entry) {
    return classifyEntry(entry.sourceId(),
                         {entry.instantDetails1(), entry.identificator(), entry.instantDescription1()});
}

} // namespace guide

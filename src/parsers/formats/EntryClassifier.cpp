#include "parsers/formats/EntryClassifier.h"

#include "text/ShowClassifier.h"

namespace guide {

TVListingsCategory classifyEntry(const TVEntry& entry) {
    return classifyEntry(entry.sourceId(),
                         {entry.instantDetails1(), entry.identificator(), entry.instantDescription1()});
}

} // namespace guide

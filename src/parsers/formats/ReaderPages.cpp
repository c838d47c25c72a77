#include "parsers/formats/ReaderPages.h"

#include "parsers/ParsersLog.h"

namespace guide {

QByteArray joinedPages(const std::vector<QByteArray>& pages) {
    if (pages.size() == 1) {
        return pages.front();
    }
    qsizetype size = 0;
    for (const QByteArray& page : pages) {
        size += page.size();
    }
    QByteArray text;
    text.reserve(size);
    for (const QByteArray& page : pages) {
        text += page;
    }
    return text;
}

const QByteArray* pageNumbered(const ListReaderInput& input, std::size_t index) {
    if (index < input.pages.size()) {
        return &input.pages[index];
    }
    qCWarning(parsersLog, "exception no page %zu among %zu", index, input.pages.size());
    return nullptr;
}

std::shared_ptr<TVEntry> newEntry(const ListReaderInput& input, const LoadItem& item, Moment start) {
    auto entry = std::make_shared<TVEntry>(input.alphabet);
    entry->setDateTime(start);
    entry->setChannel(item.channel);
    return entry;
}

std::shared_ptr<TVEntry> newEntry(const ListReaderInput& input, const LoadItem& item, const QString& title,
                                  Moment start) {
    auto entry = newEntry(input, item, start);
    entry->setIdentificator(title);
    return entry;
}

} // namespace guide

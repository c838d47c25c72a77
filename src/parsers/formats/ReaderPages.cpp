#include "parsers/formats/ReaderPages.h"

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

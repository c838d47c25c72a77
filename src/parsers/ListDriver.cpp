#include "parsers/ListDriver.h"

#include "parsers/ParsersLog.h"
#include "parsers/SourceFormats.h"

#include <exception>

namespace guide {

ListDriver::ListDriver(ListDriverEnvironment environment)
    : m_environment(std::move(environment)) {}

MergeResult ListDriver::netList(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                                Moment now, ListingsType type, bool incomplete) const {
    ReadOutcome outcome;
    ParsedLists parsed = read(items, pages, now, type, nullptr, &outcome);
    if (m_environment.stopped && m_environment.stopped()) {
        return {};
    }
    outcome.incomplete = outcome.incomplete || incomplete;
    return m_environment.merge(items, std::move(parsed), now, type, outcome);
}

ParsedLists ListDriver::read(const std::vector<LoadItem>& items, const std::vector<QByteArray>& pages,
                             Moment now, ListingsType type, MarkerTrace* trace, ReadOutcome* outcome) const {
    MarkerTrace unused;
    ReadControl control(pages, m_environment.physicalMemory, m_environment.stopped);
    ParsedLists lists;
    const ListReader reader = listReaderForType(type);
    if (!reader || items.empty()) {
        return lists;
    }
    lists.reserve(items.size());
    // Readers do not throw on any input. If a bug makes one throw, the program must not terminate.
    try {
        reader({items, pages, now, m_environment.clock, m_environment.alphabet, m_environment.hosts,
                m_environment.locale,
                m_environment.timeZone ? m_environment.timeZone() : QTimeZone::systemTimeZone(),
                trace ? *trace : unused, control},
               lists);
    } catch (const std::exception& exception) {
        qCWarning(parsersLog, "exception %s", exception.what());
    }
    if (outcome) {
        *outcome = control.outcome();
    }
    return lists;
}

} // namespace guide

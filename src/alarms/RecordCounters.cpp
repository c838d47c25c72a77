#include "alarms/RecordCounters.h"

#include <QDebug>

namespace guide {

namespace {

// What an addition and a removal are worth.
constexpr int kAddition = 2;
constexpr int kRemoval = -1;

} // namespace

void RecordCounters::incrementCounterByAmount(int amount, const QString& identificator) {
    increment(amount, identificator, {});
}

void RecordCounters::countAddedFavorite(const QString& identificator) {
    increment(kAddition, identificator, {.makesMissing = true, .removesBelowOne = false});
}

void RecordCounters::countRemovedFavorite(const QString& identificator) {
    increment(kRemoval, identificator, {.makesMissing = false, .removesBelowOne = true});
}

void RecordCounters::increment(int amount, const QString& title, const CounterRule& rule) {
    m_queue->async([&records = m_records, amount, title, rule] {
        if (!records.incrementCounter(title, amount, rule)) {
            qWarning().noquote() << "The counter of" << title << "cannot be changed";
        }
    });
}

} // namespace guide

#include "screens/kit/RowId.h"

#include <QHashFunctions>

std::size_t std::hash<guide::RowId>::operator()(const guide::RowId& id) const noexcept {
    const std::size_t section = qHash(id.section, QHashSeed::globalSeed());
    if (const guide::ShowRowKey* show = id.show()) {
        const qint64 start = show->start ? show->start->time_since_epoch().count() : -1;
        return qHashMulti(section, quint64(show->channel.hash()), start, show->ordinal);
    }
    if (const guide::ObjectId* channel = id.channel()) {
        return qHashMulti(section, quint64(channel->hash()));
    }
    return qHashMulti(section, *id.name());
}

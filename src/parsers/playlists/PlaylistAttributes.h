#pragma once

#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

namespace guide {

/// The attributes of a playlist's line, and the text behind them. Keys are in lower case, each value is
/// without its quotes.
struct PlaylistAttributes {
    std::vector<std::pair<QString, QString>> values;
    /// Behind the first comma that is not part of a value, trimmed.
    QString text;

    /// The first value that is not empty among those of the keys, in their order.
    QString value(std::initializer_list<QLatin1StringView> keys) const;
};

/// `line` begins behind the mark. Values may be in double or single quotes, also with quotes and commas
/// inside, or in none.
PlaylistAttributes playlistAttributes(QStringView line);

} // namespace guide

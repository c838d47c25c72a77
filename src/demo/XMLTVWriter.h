#pragma once

#include "demo/Programme.h"

#include <QByteArray>

#include <vector>

namespace guide {

/// How a feed says what it knows. Real feeds differ as much.
struct FeedStyle {
    enum class Form {
        /// What a show is stands in brackets before the sub-title; episode, year and repeat hang on the
        /// title.
        Bracketed,
        /// What a show is stands in `category`; makers hang on the description.
        Packed,
        /// What a show is stands in an attribute of `category`; all else in elements of its own.
        Attributes,
    };
    Form form = Form::Bracketed;
    /// Times in UTC instead of the channel's zone.
    bool utc = false;
    /// No blank between time and zone.
    bool tightZone = false;
    bool singleQuotes = false;
    /// Descriptions in CDATA sections.
    bool cdata = false;
    /// Windows-1251 and character references instead of UTF-8.
    bool cyrillicBytes = false;
};

struct FeedChannel {
    QString id;
    QString displayName;
    QByteArray zone;
    std::vector<Programme> programmes;
};

/// An XMLTV document of the channels, their programmes channel by channel.
QByteArray xmltvDocument(const std::vector<FeedChannel>& channels, const FeedStyle& style);

} // namespace guide

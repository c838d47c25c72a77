#pragma once

#include "demo/schedule/Programme.h"

#include <QByteArray>

#include <vector>

namespace guide {

/// How a feed is written. Real feeds differ in the same ways.
struct FeedStyle {
    enum class Form {
        /// The topic is in brackets before the sub-title; episode, year and repeat are part of the title.
        Bracketed,
        /// The topic is in `category`; the credits are part of the description.
        Packed,
        /// The topic is in an attribute of `category`; everything else has its own element.
        Attributes,
    };
    Form form = Form::Bracketed;
    /// Times in UTC instead of the channel's zone.
    bool utc = false;
    /// No space between time and zone.
    bool tightZone = false;
    bool singleQuotes = false;
    /// Descriptions in CDATA sections.
    bool cdata = false;
    /// Windows-1251 and character references instead of UTF-8.
    bool cyrillicBytes = false;
    /// The server of the shows' pictures; empty for a feed without pictures.
    QString pictureServer = {};
};

struct WrittenChannel {
    QString id;
    QString displayName;
    QByteArray zone;
    std::vector<Programme> programmes;
};

/// An XMLTV document with the programmes grouped by channel.
QByteArray xmltvDocument(const std::vector<WrittenChannel>& channels, const FeedStyle& style);

} // namespace guide

#pragma once

#include "core/own/OwnSource.h"
#include "core/own/SourceStatus.h"
#include "platform/Device.h"

#include <QString>

#include <vector>

namespace guide {

/// One fact about a source.
struct SourceFact {
    /// Tells the facts of a source apart.
    const char* id;
    QString title;
    QString value;
    /// A time or a number, which fits beside the title.
    bool isShort = false;
};

/// What is known about the loads of a source, in the order of display; without secrets.
std::vector<SourceFact> sourceFacts(const OwnSource& source, const SourceStatus& status,
                                    const Device& device);

/// All of it as lines of text, to be sent to somebody who can help.
QString sourceReport(const OwnSource& source, const SourceStatus& status, const Device& device);

} // namespace guide

#pragma once

#include "platform/queues/MainBlock.h"

#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace guide {

/// A past broadcast that can still be watched.
struct RecordedShow {
    /// As the archive words it, usually the date.
    QString label;
    /// Its page, http or https; unset when the archive gives none.
    std::optional<QUrl> url;
};

/// Looks up past broadcasts in the archive of a broadcaster. Main queue.
class RecordedShowsSource {
  public:
    virtual ~RecordedShowsSource() = default;
    /// Fetches pages in the background. Answers with an empty list when the archive does not have the title.
    virtual void recordedShowsWithTitle(const QString& title,
                                        MainBlock<std::vector<RecordedShow>> mainBlock) = 0;
};

} // namespace guide

#pragma once

#include "screens/kit/RowAction.h"
#include "screens/kit/ViewController.h"
#include "store/TVEntry.h"

#include <QUrl>

#include <chrono>
#include <memory>
#include <vector>

namespace guide {

/// The operations and settings of the application that screens use. Main queue.
class AppActions {
  public:
    virtual ~AppActions() = default;
    virtual void checkAndUpdateAllChannels() = 0;
    /// Marks the alarms as not synchronised, then synchronises them.
    virtual void resynchronizeAlarms() = 0;
    /// Opens a live stream.
    virtual void playURL(const QUrl& url) = 0;
    /// The actions on the row of a show. They may outlive the row.
    virtual std::vector<RowAction>
    swipeActionsConfigurationForEntry(const std::shared_ptr<const TVEntry>& /*entry*/,
                                      const std::shared_ptr<ViewController>& /*viewController*/) {
        return {};
    }

    virtual bool imagesEnabled() const = 0;
    virtual bool colorizedShows() const = 0;
    /// The age at which a list is loaded again.
    virtual std::chrono::seconds automaticUpdateInterval() const = 0;
};

} // namespace guide

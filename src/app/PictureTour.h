#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/GuideWindow.h"

#include <QString>
#include <QTimer>

#include <functional>
#include <vector>

namespace guide {

/// Opens the screens one after the other and saves a picture of each in both colour schemes: what is on now,
/// and the schedule of the first channel. Main thread.
class PictureTour {
  public:
    /// The folder must exist; file names start with `prefix`. `done` is called once, with whether every
    /// picture was written.
    PictureTour(TabBarController& tabs, GuideWindow& window, QString folder, QString prefix,
                std::function<void(bool complete)> done);

    /// Waits, for a limited time, until the channels have their shows.
    void start();

  private:
    bool channelsLoaded() const;
    void step();
    bool saveBoth(const QString& name);
    void then(int milliseconds, void (PictureTour::*next)());
    void drawCurrently();
    void drawChannel();

    TabBarController& m_tabs;
    GuideWindow& m_window;
    const QString m_folder;
    const QString m_prefix;
    const std::function<void(bool)> m_done;
    QTimer m_timer;
    int m_polls = 0;
    bool m_complete = true;
};

} // namespace guide

#pragma once

#include "screens/kit/TabBarController.h"
#include "ui/GuideWindow.h"

#include <QString>
#include <QTimer>

#include <functional>
#include <vector>

namespace guide {

/// Walks through the screens and draws each into a folder, in both colour schemes: what is on now, and the
/// schedule of the first channel. Main thread.
class PictureTour {
  public:
    /// `prefix` begins each file's name. `done` is called once, with whether every picture was written.
    PictureTour(TabBarController& tabs, GuideWindow& window, QString folder, QString prefix,
                std::function<void(bool complete)> done);

    /// Begins as soon as the channels have their shows, or after a while without them.
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
    int m_looks = 0;
    bool m_complete = true;
};

} // namespace guide

#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"
#include "ui/GuideWindow.h"

#include <QString>
#include <QTimer>

#include <cstddef>
#include <functional>

namespace guide {

class PlayerContent;

/// Opens every screen, one after the other, and saves a picture of each in both colour schemes. Main thread.
class PictureTour {
  public:
    /// The folder must exist; file names start with `prefix`. `done` is called once, with whether every
    /// screen opened and every picture was written.
    /// Unless it `mayChange` the profile, stops that add or remove something are left out.
    PictureTour(TabBarController& tabs, GuideWindow& window, QString folder, QString prefix, bool mayChange,
                std::function<void(bool complete)> done);

    /// Waits, for a limited time, until the channels have their shows.
    void start();

    // ---- the steps of the tour; false when there is nothing to act on

    bool selectTab(Symbol symbol);
    bool back();
    /// To the first row for which `matches` holds.
    bool send(const RowEvent& event, const std::function<bool(const Row&)>& matches);
    /// From the rows of the screen.
    bool addFavourites();
    bool search(const QString& text);
    bool pressButton(const QString& title);

  private:
    bool hasTab(Symbol symbol) const;
    void open();
    void poll();
    void draw();
    void later(int milliseconds, void (PictureTour::*next)());
    ViewController& top() const;
    /// Null when the screen is not a table.
    /// Null unless the player covers the window.
    PlayerContent* player() const;
    TableViewController* table() const;
    bool loaded() const;

    TabBarController& m_tabs;
    GuideWindow& m_window;
    const QString m_folder;
    const QString m_prefix;
    const bool m_mayChange;
    const std::function<void(bool)> m_done;
    QTimer m_timer;
    std::size_t m_stop = 0;
    int m_polls = 0;
    bool m_complete = true;
};

} // namespace guide

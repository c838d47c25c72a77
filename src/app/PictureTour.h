#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"
#include "ui/GuideWindow.h"

#include <QString>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <optional>

namespace guide {

/// Opens every screen, one after the other, and saves pictures of each. Main thread.
class PictureTour {
  public:
    struct Plan {
        /// Must exist.
        QString folder;
        /// Of the file names.
        QString prefix;
        /// Both colour schemes where unset.
        std::optional<ColorScheme> appearance;
        /// Otherwise stops that add or remove something are left out.
        bool mayChange = false;
        /// The address of a feed that the tour adds; nothing is added without one.
        QString source = {};
        /// Of a playlist whose channels are in the feed.
        QString playlist = {};
    };

    /// `done` is called once, with whether every screen opened and every picture was written.
    PictureTour(TabBarController& tabs, GuideWindow& window, Plan plan,
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
    /// Opens the screen that adds sources.
    bool openAdding();
    /// Into the field of that screen.
    bool enterSource();
    bool enterPlaylist();
    /// Of a show's page.
    bool pressAction(ActionSymbol symbol);

  private:
    bool hasTab(Symbol symbol) const;
    void leaveCover();
    void closeAlert();
    void open();
    bool isLeftOut() const;
    bool takesSources() const;
    bool enter(const QString& address);
    void poll();
    void draw();
    void later(int milliseconds, void (PictureTour::*next)());
    ViewController& top() const;
    /// Null when the screen is not a table.
    TableViewController* table() const;
    /// Of what covers the window; null when it is of another kind.
    template <class Kind>
    Kind* covering(ContentKind kind) const;
    bool loaded() const;

    TabBarController& m_tabs;
    GuideWindow& m_window;
    const Plan m_plan;
    const std::function<void(bool)> m_done;
    QTimer m_timer;
    std::size_t m_stop = 0;
    int m_polls = 0;
    bool m_complete = true;
};

} // namespace guide

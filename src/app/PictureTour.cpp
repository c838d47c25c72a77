#include "app/PictureTour.h"

#include "screens/kit/TableViewController.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPollInterval = 100;
constexpr int kMaxPolls = 300;
/// Time for the renderer to finish, including the software renderer.
constexpr int kSettle = 400;

/// The visible screen, which the tour expects to be a table.
TableViewController* topTable(const TabBarController& tabs) {
    return dynamic_cast<TableViewController*>(tabs.selectedNavigationController().topViewController().get());
}

} // namespace

PictureTour::PictureTour(TabBarController& tabs, GuideWindow& window, QString folder, QString prefix,
                         std::function<void(bool complete)> done)
    : m_tabs(tabs)
    , m_window(window)
    , m_folder(std::move(folder))
    , m_prefix(std::move(prefix))
    , m_done(std::move(done)) {}

void PictureTour::start() {
    m_timer.callOnTimeout([this] { step(); });
    m_timer.start(kPollInterval);
}

bool PictureTour::channelsLoaded() const {
    const TableViewController* screen = topTable(m_tabs);
    return screen && screen->table().rowCount() > 0 &&
           std::ranges::none_of(screen->table().sections(),
                                [](const Section& section) { return section.rows.size() < 2; });
}

void PictureTour::step() {
    if (!channelsLoaded() && ++m_polls < kMaxPolls) {
        return;
    }
    m_timer.stop();
    then(kSettle, &PictureTour::drawCurrently);
}

void PictureTour::then(int milliseconds, void (PictureTour::*next)()) {
    QTimer::singleShot(milliseconds, &m_timer, [this, next] { (this->*next)(); });
}

bool PictureTour::saveBoth(const QString& name) {
    bool saved = true;
    for (const auto& [scheme, word] :
         {std::pair(ColorScheme::Light, u"light"_s), std::pair(ColorScheme::Dark, u"dark"_s)}) {
        m_window.setColorScheme(scheme);
        saved = m_window.savePicture(u"%1/%2-%3-%4.png"_s.arg(m_folder, m_prefix, name, word)) && saved;
    }
    return saved;
}

void PictureTour::drawCurrently() {
    m_complete = saveBoth(u"currently"_s);
    TableViewController* screen = topTable(m_tabs);
    if (!screen || screen->table().rowCount() < 2) {
        qWarning("No channel has shows, so there is no schedule to save");
        m_done(false);
        return;
    }
    screen->sendRowEvent(screen->table().rowAt(0).id, Tapped{});
    then(kSettle, &PictureTour::drawChannel);
}

void PictureTour::drawChannel() {
    if (m_tabs.selectedNavigationController().viewControllers().size() < 2) {
        qWarning("The schedule of the first channel did not open");
        m_done(false);
        return;
    }
    m_complete = saveBoth(u"channel"_s) && m_complete;
    m_done(m_complete);
}

} // namespace guide

// Draws every kind of row in every state, and everything that covers rows, and writes one picture per screen
// and form: light and dark, each at 100 and 200 per cent text. Usage: guide_gallery FOLDER [SCREEN…]
#include "fakes/ManualQueues.h"
#include "gallery/GalleryRows.h"
#include "platform/memory/ManualClock.h"
#include "screens/kit/TabBarController.h"
#include "ui/GuideWindow.h"

#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <iostream>

namespace {

using namespace guide;
using namespace guide::test;

const QLocale kLocale(QLocale::English, QLocale::UnitedKingdom);

/// The tabs of a guide with one screen on the first of them.
struct World {
    World(UserInterfaceIdiom idiom, const std::shared_ptr<GalleryScreen>& screen)
        : tabs(idiom, queues.mainQueue()) {
        tabs.addTab({u"Currently"_s, guide::Symbol::Currently, true, {}, {}}, screen);
        const std::vector<std::pair<QString, guide::Symbol>> others{
            {u"Categories"_s, guide::Symbol::Categories},
            {u"Search"_s, guide::Symbol::Search},
            {u"Schedule"_s, guide::Symbol::Schedule},
            {u"Selected"_s, guide::Symbol::SelectedChannels}};
        for (const auto& [title, symbol] : others) {
            tabs.addTab({title, symbol, true, symbol == guide::Symbol::Schedule ? u"12"_s : QString(), {}},
                        std::make_shared<GalleryScreen>(title, std::vector<Section>()));
        }
    }
    NavigationController& stack() const { return tabs.selectedNavigationController(); }

    ManualClock clock;
    ManualQueues queues{clock};
    TabBarController tabs;
};

/// One picture of the gallery.
struct Specimen {
    QString name;
    std::vector<Section> sections;
    int height = 844;
    /// Sets the state of the screen; afterwards, `act` sets that of the list as drawn.
    std::function<void(World&, GalleryScreen&)> prepare = [](World&, GalleryScreen&) {};
    std::function<void(QQuickItem& list)> act = [](QQuickItem&) {};
    /// Wider than a tablet.
    bool wide = false;
};

void settle(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

QQuickItem* visibleList(QQuickItem* item) {
    if (!item->isVisible()) {
        return nullptr;
    }
    if (item->objectName() == "rows"_L1) {
        return item;
    }
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = visibleList(child)) {
            return found;
        }
    }
    return nullptr;
}

QVariant rowItem(QQuickItem& list, int row) {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(&list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
    return QVariant::fromValue(item);
}

QImage drawn(const Specimen& specimen, UserInterfaceIdiom idiom, ColorScheme scheme, double textScale,
             const QSize& size) {
    GalleryPictures pictures;
    const auto screen = std::make_shared<GalleryScreen>(specimen.name, specimen.sections);
    World world(idiom, screen);
    GuideWindow window(world.tabs, {.form = idiom,
                                    .scheme = scheme,
                                    .textScale = textScale,
                                    .size = size,
                                    .motion = false,
                                    .locale = kLocale,
                                    .pictures = &pictures});
    window.show();
    specimen.prepare(world, *screen);
    settle(150);
    auto* quick = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().constLast());
    if (QQuickItem* list = visibleList(quick->contentItem())) {
        specimen.act(*list);
        settle(150);
    }
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"picture.png"_s);
    return window.savePicture(path) ? QImage(path) : QImage();
}

/// Light and dark side by side, ordinary text before large text.
bool draw(const Specimen& specimen, UserInterfaceIdiom idiom, const QString& path) {
    const bool phone = idiom == UserInterfaceIdiom::Phone;
    const QSize size(phone ? 390 : specimen.wide ? 1280 : 820, specimen.height);
    constexpr int kGap = 8;
    QImage sheet(4 * size.width() + 3 * kGap, size.height(), QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x80, 0x80));
    QPainter painter(&sheet);
    int x = 0;
    for (const double textScale : {1.0, 2.0}) {
        for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
            const QImage image = drawn(specimen, idiom, scheme, textScale, size);
            if (image.isNull()) {
                return false;
            }
            painter.drawImage(x, 0, image);
            x += size.width() + kGap;
        }
    }
    painter.end();
    return sheet.save(path);
}

std::vector<Specimen> specimens() {
    const auto pushed = [](World& world, GalleryScreen&) {
        auto below = std::make_shared<GalleryScreen>(u"A screen on top of another one"_s, galleryShows());
        below->setRightBarButtons(
            {{BarButton::Kind::Refresh, u"Refresh"_s, [] {}}, {BarButton::Kind::Play, u"Play"_s, [] {}}});
        world.stack().push(std::move(below));
    };
    const auto bars = [](World&, GalleryScreen& screen) {
        screen.setLeftBarButtons({{BarButton::Kind::Title, u"Edit"_s, [] {}}});
        screen.setRightBarButtons({{BarButton::Kind::Activity, u"Refreshing"_s, {}},
                                   {BarButton::Kind::Title, u"Options"_s, [] {}, false}});
        screen.setProgress(Progress{0.4});
        screen.setSearchField(SearchField{u"Shows, people, descriptions"_s});
    };
    const auto presented = [](Presentation presentation) {
        return [presentation](World& world, GalleryScreen& screen) {
            screen.setRightBarButtons({{BarButton::Kind::Title, u"Channels"_s, [] {}}});
            world.stack().show(std::make_shared<GalleryScreen>(u"Channels"_s, galleryTiles()), presentation,
                               BarButtonAnchor{false, 0});
        };
    };
    return {
        {u"shows"_s, galleryShows(), 1100},
        {u"channels"_s, galleryChannels(), 1000},
        {u"editing"_s, galleryChannels(), 1000,
         [](World&, GalleryScreen& screen) { screen.table().setEditing(true); }},
        {u"settings"_s, gallerySettings(), 1900},
        {u"forms"_s, galleryForms(), 1500},
        {u"pictures"_s, galleryPictures(), 1100},
        {u"show-page"_s, galleryShowPage(), 900},
        {u"tiles"_s, galleryTiles(), 1200},
        {u"bars"_s, galleryShows(), 844, bars},
        {u"pushed"_s, galleryChannels(), 844, pushed, [](QQuickItem&) {}, true},
        {u"swipe"_s, galleryShows(), 844, [](World&, GalleryScreen&) {},
         [](QQuickItem& list) {
             QMetaObject::invokeMethod(rowItem(list, 2).value<QQuickItem*>(), "uncover");
         }},
        {u"focus"_s, galleryShows(), 844, [](World&, GalleryScreen&) {},
         [](QQuickItem& list) {
             list.forceActiveFocus(Qt::TabFocusReason);
             QMetaObject::invokeMethod(&list, "step", Q_ARG(QVariant, 3));
         }},
        {u"menu"_s, galleryShows(), 844, [](World&, GalleryScreen&) {},
         [](QQuickItem& list) {
             QMetaObject::invokeMethod(&list, "openMenu", Q_ARG(QVariant, rowItem(list, 2)),
                                       Q_ARG(QVariant, 60), Q_ARG(QVariant, 40));
         }},
        {u"choices"_s,
         {gallerySettings()[2]},
         844,
         [](World&, GalleryScreen&) {},
         [](QQuickItem& list) {
             QMetaObject::invokeMethod(&list, "openChoices", Q_ARG(QVariant, rowItem(list, 0)));
         }},
        {u"time"_s,
         {gallerySettings()[2]},
         844,
         [](World&, GalleryScreen&) {},
         [](QQuickItem& list) {
             QMetaObject::invokeMethod(&list, "openTimePicker", Q_ARG(QVariant, rowItem(list, 4)));
         }},
        {u"popover"_s, galleryChannels(), 844, presented(Presentation::Popover)},
        {u"sheet"_s, galleryChannels(), 844, presented(Presentation::Sheet)},
        {u"notice"_s, galleryShows(), 844,
         [](World& world, GalleryScreen&) {
             world.tabs.presentNotice({u"Žlutá jedna is no longer selected."_s, u"Undo"_s, [] {}});
         }},
        {u"alert"_s, galleryShows(), 844,
         [](World& world, GalleryScreen&) {
             world.tabs.presentAlert(
                 {u"Remove all data?"_s,
                  u"Favourites, alarms and the selection of channels are deleted from this device."_s,
                  {{u"Remove everything"_s, AlertAction::Style::Destructive, nullptr},
                   {u"Cancel"_s, AlertAction::Style::Cancel, nullptr}}});
         }},
        {u"empty"_s,
         {},
         844,
         [](World&, GalleryScreen& screen) {
             screen.table().setEmptyNote(EmptyNote{
                 u"No channels yet"_s, u"What is on now appears here once you have chosen channels."_s,
                 u"Choose channels"_s, [] {}});
         }},
    };
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2) {
        std::cerr << "usage: guide_gallery FOLDER [SCREEN…]\n";
        return 2;
    }
    QDir().mkpath(arguments[1]);
    bool complete = true;
    for (const Specimen& specimen : specimens()) {
        if (arguments.size() > 2 && !arguments.contains(specimen.name)) {
            continue;
        }
        for (const UserInterfaceIdiom idiom : {UserInterfaceIdiom::Phone, UserInterfaceIdiom::Tablet}) {
            const QString form = idiom == UserInterfaceIdiom::Phone ? u"phone"_s : u"tablet"_s;
            const QString path = u"%1/%2-%3.png"_s.arg(arguments[1], specimen.name, form);
            if (!draw(specimen, idiom, path)) {
                std::cerr << "could not draw " << path.toStdString() << '\n';
                complete = false;
            }
        }
    }
    return complete ? 0 : 1;
}

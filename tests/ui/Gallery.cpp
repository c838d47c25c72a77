// Fills the screens with a made-up evening and writes pictures of them: a way to look at the drawing while
// working on it. Usage: guide_ui_gallery FOLDER [TEXT-PIXELS]
#include "GalleryShows.h"
#include "ui/GuideWindow.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFont>
#include <QGuiApplication>

#include <iostream>

namespace {

using namespace guide;
using namespace guide::test;

void settle(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

struct Form {
    UserInterfaceIdiom idiom;
    QString name;
};

void takePictures(const Form& form, const QString& folder) {
    ScreenWorld world(form.idiom);
    fillWithEvening(world);
    if (form.idiom == UserInterfaceIdiom::Tablet) {
        world.tabs->setSelectedIndex(currentlyTabIndex(form.idiom));
    }
    GuideWindow window(*world.tabs, {.form = form.idiom, .motion = false});
    window.show();
    world.queues.runAll();
    const auto save = [&](const QString& screen) {
        for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark}) {
            window.setColorScheme(scheme);
            settle(150);
            const QString path = u"%1/%2-%3-%4.png"_s.arg(
                folder, screen, form.name, scheme == ColorScheme::Light ? u"light"_s : u"dark"_s);
            if (!window.savePicture(path)) {
                std::cerr << "could not write " << path.toStdString() << '\n';
            }
        }
    };
    save(u"currently"_s);
    world.top().tapRow({0, 0});
    world.queues.runAll();
    save(u"channel"_s);
    world.tabs->selectedNavigationController().pop();
    world.tabs->presentAlert({u"Alert"_s,
                              u"Unable to establish connection to remote server"_s,
                              {{u"OK"_s, AlertAction::Style::Default, nullptr}}});
    save(u"alert"_s);
    world.tabs->answerAlert(0);
    world.tabs->setBadgeValue(scheduleTabIndex(form.idiom), u"12"_s);
    world.tabs->disableTabs();
    save(u"empty"_s);
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"Quellin Guide"_s);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 2) {
        std::cerr << "usage: guide_ui_gallery FOLDER [TEXT-PIXELS]\n";
        return 2;
    }
    if (arguments.size() > 2) {
        QFont font;
        font.setPixelSize(arguments[2].toInt());
        QGuiApplication::setFont(font);
    }
    QDir().mkpath(arguments[1]);
    takePictures({UserInterfaceIdiom::Phone, u"phone"_s}, arguments[1]);
    takePictures({UserInterfaceIdiom::Tablet, u"tablet"_s}, arguments[1]);
    return 0;
}

// Decodes a thousand pictures, scrolls through their rows and measures by how much the memory grows. The
// floor is 64 MB, the most that it may grow.

#include "WindowMeasure.h"
#include "core/PictureDecoding.h"
#include "core/TVStationIcons.h"
#include "fakes/StoreFixture.h"
#include "platform/queues/ThreadedQueues.h"
#include "screens/GuidePictures.h"
#include "screens/ShowPictureCache.h"
#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"
#include "ui/GuideWindow.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <algorithm>
#include <malloc.h>
#include <utility>

namespace guide::bench {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPictures = 1'000;
constexpr double kMostMegabytes = 64;
constexpr double kScreenHeight = 700;
/// That of a row's picture on a phone.
constexpr QSizeF kPictureSize(121, 121);

/// A photograph's size, compressed; each has another colour.
QByteArray pictureFile(int number) {
    QImage image(1280, 720, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(number % 360, 120 + number % 100, 200));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    return bytes;
}

/// Shows whose pictures are decoded when their rows are displayed, as those of a schedule are.
class PicturedShows final : public TableViewController {
  public:
    explicit PicturedShows(ShowPictureCache& cache)
        : m_cache(cache) {
        table().setSections(sections());
    }

    int decoded() const { return m_decoded; }

    /// Decodes the pictures of the rows that have been displayed.
    void decodePictures() {
        for (const QString& number : std::exchange(m_displayed, {})) {
            if (m_cache.find(m_channel, number)) {
                continue;
            }
            const QImage image =
                decodedPicture(pictureFile(number.toInt()), kShowPictureLimits, [](const QSize& own, bool) {
                    return scaledPictureSize(own, kPictureSize, 2);
                });
            if (image.isNull()) {
                fail("a picture was not decoded");
            }
            ++m_decoded;
            m_cache.insert(m_channel, number, image);
        }
        table().setSections(sections());
    }

  protected:
    void rowWillBeDisplayed(const RowId& id) override { m_displayed << *id.name(); }

  private:
    std::vector<Section> sections() const {
        Section section{u"shows"_s, u"Today"_s};
        for (int number = 0; number < kPictures; ++number) {
            ShowRow show{.startTime = u"20:15"_s};
            show.title = u"Show %1"_s.arg(number);
            show.picture = m_cache.find(m_channel, QString::number(number)).value_or(PictureKey());
            section.rows.push_back({{section.id, QString::number(number)}, std::move(show), true});
        }
        return {std::move(section)};
    }

    ShowPictureCache& m_cache;
    const ObjectId m_channel = test::StoreFixture::channelNumbered(1);
    QStringList m_displayed;
    int m_decoded = 0;
};

double megabytesInUse() {
    malloc_trim(0);
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        fail("the memory in use is not known");
    }
    return file.readAll().split(' ').at(1).toDouble() * 4096 / (1 << 20);
}

int measure() {
    ThreadedQueues queues([] {});
    TVStationIcons icons({}, 2);
    ShowPictureCache cache;
    GuidePictures pictures(icons, cache);
    TabBarController tabs(UserInterfaceIdiom::Phone, queues.mainQueue());
    const auto shows = std::make_shared<PicturedShows>(cache);
    tabs.addTab({u"Shows"_s}, shows);
    GuideWindow guide(tabs, {.motion = false, .pictures = &pictures});
    if (!guide.loaded()) {
        fail("the window cannot be drawn");
    }
    guide.show();
    QQuickWindow& window = openedWindow();
    QQuickItem* list = listIn(window.contentItem());
    if (!list) {
        fail("there is no list");
    }
    drawFrame(window, [] {});
    const double before = megabytesInUse();
    double most = before;
    for (double y = 0; y < list->property("contentHeight").toDouble() - kScreenHeight;
         y += kScreenHeight / 2) {
        drawFrame(window, [&] { list->setProperty("contentY", y); });
        drawFrame(window, [&] { shows->decodePictures(); });
        most = std::max(most, megabytesInUse());
    }
    if (shows->decoded() < kPictures * 95 / 100) {
        fail("not all pictures were shown");
    }
    std::printf(
        "{\"row\": \"memory after 1,000 pictures\", \"unit\": \"MB\", \"guide\": %.1f, \"floor\": %.1f, "
        "\"atMost\": 1}\n",
        most - before, kMostMegabytes);
    return 0;
}

} // namespace
} // namespace guide::bench

int main(int argc, char** argv) {
    guide::bench::prepareWindows();
    const QGuiApplication application(argc, argv);
    return guide::bench::measure();
}

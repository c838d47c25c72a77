#include "AccessibleTree.h"
#include "GalleryShows.h"
#include "TextFit.h"
#include "WindowTest.h"
#include "screens/kit/TableViewController.h"

#include <QFont>
#include <QQmlContext>
#include <QQmlProperty>

#include <array>
#include <tuple>

namespace guide::test {
namespace {

constexpr int kOrdinaryText = 13;
constexpr int kLargeText = 26;

/// Opens one screen after the other, at each form and text size.
class EveryScreenTest : public WindowTest,
                        public testing::WithParamInterface<std::tuple<UserInterfaceIdiom, int>> {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        QFont sized = m_system;
        sized.setPixelSize(std::get<int>(GetParam()));
        QGuiApplication::setFont(sized);
        fillWithEvening(world);
        world.tabs->setSelectedIndex(currentlyTabIndex(idiom()));
        openWindow(*world.tabs, {.form = idiom(), .motion = false});
        proceed();
    }
    void TearDown() override {
        WindowTest::TearDown();
        QGuiApplication::setFont(m_system);
    }
    static UserInterfaceIdiom idiom() { return std::get<UserInterfaceIdiom>(GetParam()); }
    void proceed() {
        world.queues.runAll();
        settle();
    }
    TableViewController& top() const { return dynamic_cast<TableViewController&>(world.top()); }
    void tapRow(int row) {
        top().sendRowEvent(top().table().rowAt(row).id, Tapped{});
        proceed();
    }
    /// The names of the rows that have an item, in the order of the table.
    QStringList namesOfRows() const {
        QStringList names;
        for (int index = 0; index < rows()->property("count").toInt(); ++index) {
            if (const QQuickItem* item = row(index); item && item->isVisible()) {
                for (const QQuickItem* surface : itemsWith("selectable", const_cast<QQuickItem*>(item))) {
                    names
                        << QQmlProperty::read(surface, u"Accessible.name"_s, qmlContext(surface)).toString();
                }
            }
        }
        return names;
    }

    void check(const char* screen) const {
        SCOPED_TRACE(screen);
        for (QQuickItem* list : lists()) {
            QObject* order = list->findChild<QObject*>(u"readingOrder"_s);
            ASSERT_TRUE(order);
            if (!order->property("always").toBool()) {
                order->setProperty("always", true);
                QMetaObject::invokeMethod(order, "rowPlaced");
            }
        }
        settle();
        const QStringList wrong = misfits(*quickWindow->contentItem());
        EXPECT_TRUE(wrong.isEmpty()) << wrong.join(u'\n').toStdString();

        const QList<AccessibleItem> items = accessibleItems(*quickWindow);
        const QStringList nameless = namelessItems(items);
        EXPECT_TRUE(nameless.isEmpty()) << nameless.join(u'\n').toStdString();
        QStringList read;
        for (const AccessibleItem& item : items) {
            read << item.name;
        }
        // Every row is read, in the order in which it is seen.
        qsizetype at = 0;
        for (const QString& name : namesOfRows()) {
            const qsizetype found = read.indexOf(name, at);
            EXPECT_GE(found, 0) << name.toStdString() << " is not read after "
                                << (at > 0 ? read.at(at - 1) : QString()).toStdString();
            at = found < 0 ? at : found + 1;
        }
    }

    ScreenWorld world{idiom()};

  private:
    const QFont m_system = QGuiApplication::font();
};

TEST_P(EveryScreenTest, TextsFitAndRowsAreReadInOrder) {
    check("currently");
    scrollTo(900);
    scrollTo(300);
    check("currently, scrolled back");
    scrollTo(0);
    tapRow(0);
    check("channel");
    world.tabs->setSelectedIndex(currentlyTabIndex(idiom()) + 1);
    proceed();
    check("categories");
    tapRow(idiom() == UserInterfaceIdiom::Phone ? 3 : 2);
    check("films");
    world.tabs->setSelectedIndex(currentlyTabIndex(idiom()) + 2);
    proceed();
    check("search");
    world.top().editSearchText(u"ni"_s);
    proceed();
    ASSERT_GT(top().table().rowCount(), 3);
    check("results");
    world.top().finishSearch();
    world.top().editSearchText(u"nihilist"_s);
    proceed();
    check("nothing found");
    world.top().cancelSearch();
    proceed();
    check("recent searches");
    focus();
    press(Qt::Key_Question, Qt::ShiftModifier);
    check("keys");
}

INSTANTIATE_TEST_SUITE_P(
    Forms, EveryScreenTest,
    testing::Combine(testing::Values(UserInterfaceIdiom::Phone, UserInterfaceIdiom::Tablet),
                     testing::Values(kOrdinaryText, kLargeText)),
    [](const auto& param) {
        return std::string(std::get<0>(param.param) == UserInterfaceIdiom::Phone ? "Phone" : "Tablet") +
               (std::get<1>(param.param) == kOrdinaryText ? "" : "LargeText");
    });

} // namespace
} // namespace guide::test

#include "ui/Page.h"

#include "screens/kit/NavigationController.h"

#include <QVariantMap>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

Page::Page(std::shared_ptr<ViewController> viewController, const ViewController* below, Symbol symbol,
           Theme& theme, QObject* parent)
    : QObject(parent)
    , m_viewController(std::move(viewController))
    , m_backTitle(below ? below->title() : QString())
    , m_canGoBack(below != nullptr)
    , m_symbol(symbol)
    , m_rows(m_viewController, nullptr) {
    const auto measure = [this, &theme] { m_rows.measureTimes(theme.timeFont(), theme.raisedTimeFont()); };
    measure();
    connect(&theme, &Theme::fontsChanged, this, measure);
    m_viewController->setObserver(this);
}

Page::~Page() {
    m_viewController->setObserver(nullptr);
}

QVariantList Page::buttons() const {
    QVariantList buttons;
    for (const BarButton& button : m_viewController->rightBarButtons()) {
        buttons << QVariantMap{{u"kind"_s, static_cast<int>(button.kind)}, {u"title"_s, button.title}};
    }
    return buttons;
}

void Page::goBack() {
    NavigationController* navigation = m_viewController->navigationController();
    if (navigation && navigation->topViewController() == m_viewController) {
        navigation->pop();
    }
}

void Page::press(int button) {
    m_viewController->pressBarButton(static_cast<std::size_t>(button));
}

void Page::pull() {
    m_viewController->pullToRefresh();
}

} // namespace guide

#include "ui/model/Page.h"

#include "screens/kit/NavigationController.h"
#include "screens/kit/TableViewController.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QList<BarButtonValue> valuesOf(const std::vector<BarButton>& buttons) {
    QList<BarButtonValue> values;
    for (const BarButton& button : buttons) {
        values.push_back({static_cast<int>(button.kind), button.title, button.enabled});
    }
    return values;
}

} // namespace

Page::Page(std::shared_ptr<ViewController> viewController, const ViewController* below, Symbol symbol,
           Theme& theme, QObject* parent)
    : QObject(parent)
    , m_viewController(std::move(viewController))
    , m_backTitle(below ? below->title() : QString())
    , m_canGoBack(below != nullptr)
    , m_symbol(symbol) {
    makeModel(theme);
    m_viewController->setObserver(this);
}

Page::~Page() {
    m_viewController->setObserver(nullptr);
}

// This function and the next are the only ones that know which page draws which kind of content.
void Page::makeModel(Theme& theme) {
    Content& content = m_viewController->content();
    switch (content.kind()) {
    case ContentKind::Table: {
        m_rows = std::make_unique<TableModel>(std::static_pointer_cast<TableViewController>(m_viewController),
                                              theme.locale(), nullptr);
        const auto setFonts = [this, &theme] { m_rows->setTimeFonts(theme.timeFont(), theme.endTimeFont()); };
        setFonts();
        connect(&theme, &Theme::fontsChanged, this, setFonts);
        break;
    }
    case ContentKind::Player:
        m_player = std::make_unique<PlayerModel>(static_cast<PlayerContent&>(content));
        break;
    case ContentKind::WebPage:
        m_webPage = std::make_unique<WebPageModel>(static_cast<WebPageContent&>(content));
        break;
    case ContentKind::PicturePages:
        m_pictures = std::make_unique<PicturePagesModel>(static_cast<PicturePagesContent&>(content));
        break;
    }
}

QUrl Page::source() const {
    const auto page = [](QLatin1StringView name) {
        return QUrl("qrc:/qt/qml/Quellin/qml/pages/"_L1 + name + ".qml"_L1);
    };
    switch (m_viewController->content().kind()) {
    case ContentKind::Table:
        return page("TablePage"_L1);
    case ContentKind::Player:
        return page("PlayerPage"_L1);
    case ContentKind::WebPage:
        return page("WebPage"_L1);
    case ContentKind::PicturePages:
        return page("PicturePages"_L1);
    }
    return {};
}

QList<BarButtonValue> Page::leftButtons() const {
    return valuesOf(m_viewController->leftBarButtons());
}

QList<BarButtonValue> Page::rightButtons() const {
    return valuesOf(m_viewController->rightBarButtons());
}

double Page::progress() const {
    return m_viewController->progress().value_or(Progress{}).fraction.value_or(-1);
}

QString Page::searchPlaceholder() const {
    return searchable() ? m_viewController->searchField()->placeholder : QString();
}

QString Page::searchText() const {
    return searchable() ? m_viewController->searchField()->text : QString();
}

bool Page::searchOnOpening() const {
    return searchable() && m_viewController->searchField()->focusOnOpening;
}

void Page::goBack() {
    NavigationController* navigation = m_viewController->navigationController();
    if (!navigation || navigation->topViewController() != m_viewController) {
        return;
    }
    if (m_canGoBack) {
        navigation->pop();
    } else {
        navigation->dismiss();
    }
}

void Page::pressLeft(int button) {
    m_viewController->pressLeftBarButton(static_cast<std::size_t>(button));
}

void Page::pressRight(int button) {
    m_viewController->pressRightBarButton(static_cast<std::size_t>(button));
}

void Page::pull() {
    m_viewController->pullToRefresh();
}

void Page::search(const QString& text) {
    m_viewController->editSearchText(text);
}

void Page::cancelSearch() {
    m_viewController->cancelSearch();
}

void Page::finishSearch() {
    m_viewController->finishSearch();
}

} // namespace guide

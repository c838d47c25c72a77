#include "ui/model/Shell.h"

#include "screens/Localized.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// In pixels; a title that does not fit even at the smallest size is elided.
constexpr double kTabFont = 11;
constexpr double kSmallestTabFont = 9;

} // namespace

Shell::Shell(TabBarController& tabBarController, UserInterfaceIdiom form, Theme& theme, QObject* parent)
    : QAbstractListModel(parent)
    , m_tabBarController(tabBarController)
    , m_form(form)
    , m_theme(theme) {
    for (const TabBarController::Tab& tab : m_tabBarController.tabs()) {
        m_stacks.push_back(new PageStack(*tab.navigationController, tab.item.symbol, theme, this));
    }
    m_tabBarController.setObserver(this);
}

Shell::~Shell() {
    m_tabBarController.setObserver(nullptr);
}

int Shell::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_stacks.size());
}

QVariant Shell::data(const QModelIndex& index, int role) const {
    const auto number = static_cast<std::size_t>(index.row());
    if (!index.isValid() || number >= m_stacks.size()) {
        return {};
    }
    const TabBarItem& item = m_tabBarController.tabs()[number].item;
    switch (role) {
    case TitleRole:
        return tabTitle(item);
    case SymbolRole:
        return static_cast<int>(item.symbol);
    case EnabledRole:
        return item.enabled;
    case BadgeRole:
        return item.badgeValue;
    case StackRole:
        return QVariant::fromValue(m_stacks[number]);
    default:
        return {};
    }
}

QHash<int, QByteArray> Shell::roleNames() const {
    return {{TitleRole, "title"},
            {SymbolRole, "symbol"},
            {EnabledRole, "tabEnabled"},
            {BadgeRole, "badge"},
            {StackRole, "stack"}};
}

QString Shell::tabTitle(const TabBarItem& item) const {
    return tablet() || item.shortTitle.isEmpty() ? item.title : item.shortTitle;
}

QFont Shell::tabFont(double width, double textScale) const {
    // Text widths are proportional to the font size, so that one measurement is enough.
    constexpr double kMeasured = 100;
    const QFontMetricsF metrics(themeFont(kMeasured, QFont::DemiBold));
    double widest = 1;
    for (const TabBarController::Tab& tab : m_tabBarController.tabs()) {
        const QString title = tabTitle(tab.item);
        for (const QString& line : tablet() ? title.split(u' ') : QStringList{title}) {
            widest = std::max(widest, metrics.horizontalAdvance(line));
        }
    }
    const double most = std::floor(kMeasured * width / widest);
    return themeFont(std::max(kSmallestTabFont, std::min(kTabFont * textScale, most)), QFont::DemiBold);
}

void Shell::setTouching(bool touching) {
    if (touching != m_touching) {
        m_touching = touching;
        Q_EMIT touchingChanged();
    }
}

QString Shell::alertTitle() const {
    const Alert* alert = m_tabBarController.presentedAlert();
    return alert ? alert->title : QString();
}

QString Shell::alertMessage() const {
    const Alert* alert = m_tabBarController.presentedAlert();
    return alert ? alert->message : QString();
}

QList<AlertActionValue> Shell::alertActions() const {
    QList<AlertActionValue> actions;
    if (const Alert* alert = m_tabBarController.presentedAlert()) {
        for (const AlertAction& action : alert->actions) {
            actions.push_back({action.title, action.style == AlertAction::Style::Destructive,
                               action.style == AlertAction::Style::Cancel});
        }
    }
    return actions;
}

QString Shell::noticeText() const {
    const Notice* notice = m_tabBarController.presentedNotice();
    return notice ? notice->text : QString();
}

QString Shell::noticeAction() const {
    const Notice* notice = m_tabBarController.presentedNotice();
    return notice ? notice->actionTitle : QString();
}

bool Shell::fileChooserForFolders() const {
    const FileChooser* chooser = m_tabBarController.presentedFileChooser();
    return chooser && chooser->kind == FileChooser::Kind::Folder;
}

QString Shell::fileChooserTitle() const {
    const FileChooser* chooser = m_tabBarController.presentedFileChooser();
    return chooser ? chooser->title : QString();
}

void Shell::closeFileChooser(const QUrl& file) {
    m_tabBarController.closeFileChooser(file.toLocalFile());
}

void Shell::cannotChooseFiles() {
    const QString text =
        fileChooserForFolders()
            ? Localized::tr(
                  "Folders cannot be chosen: the package %1 is missing. Type the path of the folder.")
            : Localized::tr("Files cannot be chosen: the package %1 is missing. Type the path of the file.");
    m_tabBarController.closeFileChooser();
    m_tabBarController.presentNotice({text.arg("qml6-module-qtquick-dialogs"_L1)});
}

void Shell::drop(const QList<QUrl>& urls, const QString& text) {
    const QString input = urls.isEmpty()          ? text.trimmed()
                          : urls[0].isLocalFile() ? urls[0].toLocalFile()
                                                  : urls[0].toString(QUrl::FullyEncoded);
    if (!input.isEmpty()) {
        Q_EMIT dropped(input);
    }
}

void Shell::openSearch() {
    const auto& tabs = m_tabBarController.tabs();
    const auto found = std::ranges::find_if(
        tabs, [](const TabBarController::Tab& tab) { return tab.item.symbol == Symbol::Search; });
    const int index = static_cast<int>(found - tabs.begin());
    if (found == tabs.end() || !found->item.enabled) {
        return;
    }
    m_tabBarController.setSelectedIndex(index);
    found->navigationController->popToRoot();
}

void Shell::answerAlert(int action) {
    m_tabBarController.answerAlert(static_cast<std::size_t>(action));
}

void Shell::escapeAlert() {
    const Alert* alert = m_tabBarController.presentedAlert();
    if (!alert) {
        return;
    }
    for (std::size_t index = 0; index < alert->actions.size(); ++index) {
        if (alert->actions[index].style == AlertAction::Style::Cancel || alert->actions.size() == 1) {
            m_tabBarController.answerAlert(index);
            return;
        }
    }
}

void Shell::coverChanged() {
    Page* gone = m_cover;
    const std::shared_ptr<ViewController>& cover = m_tabBarController.cover();
    m_cover = cover ? new Page(cover, nullptr, Symbol::Currently, m_theme, this) : nullptr;
    if (m_cover && m_cover->player()) {
        connect(m_cover->player(), &PlayerModel::stateUpdated, this, &Shell::fullScreenUpdated);
    }
    Q_EMIT coverUpdated();
    Q_EMIT fullScreenUpdated();
    if (gone) {
        gone->deleteLater();
    }
}

void Shell::tabBarItemChanged(int index) {
    Q_EMIT dataChanged(this->index(index), this->index(index));
}

} // namespace guide

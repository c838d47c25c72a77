// Draft of the contract between screens/ and ui/; merge into ViewController.h, NavigationController.h, TabBarController.h.
//
// class ViewController (abstract): title, leftBarButtons, rightBarButtons, hasRefreshControl, refreshing, progress
//   (std::optional<double> or busy: the thin bar under the title), std::optional<SearchField>{placeholder,text},
//   virtual Content& content() = 0;  observer: titleChanged, barButtonsChanged, refreshingChanged, progressChanged, searchFieldChanged
//   person's events: pressLeftBarButton(i), pressRightBarButton(i), pullToRefresh(), editSearchText(QString), cancelSearch()
// class TableViewController : public ViewController: Table m_table; content() is the table;
//   events from ui: void sendRowEvent(const RowId&, const RowEvent&)  (checks that the row exists; Tapped on a selectable row selects it)
//                   std::vector<RowAction> rowActions(const RowId&)   (swipe from the trailing edge, right click, long press, menu key)
//                   void rowDisplayed(const RowId&)
//   hooks: virtual void rowEvent(const RowId&, const RowEvent&); virtual std::vector<RowAction> actionsForRow(const RowId&);
//          virtual void rowWillBeDisplayed(const RowId&);
// struct RowAction {QString title; QString name; ColorRole color; std::function<void()> action;}   (was SwipeAction)
// enum class Presentation { Push, Popover, Sheet };
// struct Anchor: std::variant<std::monostate, BarButtonAnchor{bool left; int index}, RowId>
// NavigationController::show(std::shared_ptr<ViewController>, Presentation, Anchor): on a phone a popover is a push;
//   observer: presented(Presentation, Anchor), dismissed(); presentedViewController(); dismiss()
// TabBarController: presentNotice(Notice{QString text; QString actionTitle; std::function<void()> action}), 8 seconds, one at a time;
//   observer noticeChanged()
// struct PictureProvider (screens/kit/PictureProvider.h): virtual QImage picture(const PictureKey&, QSize pixels) = 0; any thread;
//   null image when there is none. screens/ implements it (icons by TVStationIcons, shows by ShowPictureCache); GuideWindow gets it.

#pragma once

#include "core/own/KnownFeeds.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <functional>
#include <memory>

namespace guide {

/// The rows of a country's feeds. The name in the id of each is its place among them.
std::vector<Row> knownFeedRows(const SectionId& section, const KnownFeedCountry& country,
                               const QLocale& locale);
QString knownFeedsFooter();

/// The public feeds that the guide knows of all countries, the one of the device first.
class KnownFeedsViewController final : public TableViewController {
  public:
    KnownFeedsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                             std::function<void(const QString& address)> chosen);

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override { table().deselectRow(); }
    void searchTextEdited(const QString& text) override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show();

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const std::function<void(const QString&)> m_chosen;
    QString m_searched;
};

} // namespace guide

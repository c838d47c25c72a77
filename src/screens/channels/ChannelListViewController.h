#pragma once

#include "screens/AppNavigation.h"
#include "screens/kit/TableViewController.h"

#include <QUrl>

#include <optional>
#include <vector>

namespace guide {

/// A channel with its live stream, if it has one.
struct StreamChannel {
    ObjectId identificator;
    QString title;
    PictureKey icon = {};
    std::optional<QUrl> stream = {};
};

/// The channels of the first screen, for playing their streams.
class ChannelListViewController final : public TableViewController {
  public:
    /// `navigation` must outlive the screen.
    ChannelListViewController(AppNavigation& navigation, std::vector<StreamChannel> channels);

  protected:
    void viewDidLoad() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    AppNavigation& m_navigation;
    const std::vector<StreamChannel> m_channels;
};

} // namespace guide

#pragma once

#include "screens/shell/ListingsScreen.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// One broadcast: its time, title and every detail known.
class DetailViewController final : public ListingsScreen {
  public:
    DetailViewController(std::shared_ptr<const ScreenEnvironment> environment, ShowItem show,
                         const QString& channelIconName);

    const ShowItem& show() const { return m_show; }

  protected:
    void viewDidLoad() override;

  private:
    const std::shared_ptr<const ScreenEnvironment> m_environment;
    ShowItem m_show;
    const QString m_channelIconName;
};

} // namespace guide

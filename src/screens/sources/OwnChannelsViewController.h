#pragma once

#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/SourceActions.h"

#include <memory>
#include <optional>

namespace guide {

/// The channels chosen from a source, each with its language and shift.
class OwnChannelsViewController final : public TableViewController {
  public:
    OwnChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                              const OwnSourceId& source);

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const OwnSourceId m_source;
};

/// The language and shift of one of them.
class OwnChannelViewController final : public TableViewController {
  public:
    OwnChannelViewController(std::shared_ptr<const ScreenEnvironment> environment, const OwnSourceId& source,
                             QString key);

  protected:
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show(const OwnChannel& channel);

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const OwnSourceId m_source;
    const QString m_key;
};

} // namespace guide

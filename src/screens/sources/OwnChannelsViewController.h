#pragma once

#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/SourceActions.h"

#include <memory>
#include <optional>

namespace guide {

/// The channels chosen from a source, each with its settings.
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

/// The language, shift and picture of one of them.
class OwnChannelViewController final : public TableViewController {
  public:
    OwnChannelViewController(std::shared_ptr<const ScreenEnvironment> environment, const OwnSourceId& source,
                             QString key);

  protected:
    void viewWillAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show();
    Section settingSection(const OwnChannel& channel) const;
    Section pictureSection() const;
    void choosePicture();
    void take(const QString& file);
    void change(const QString& name, std::size_t choice);
    std::optional<OwnChannel> channel() const;

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    const OwnSourceId m_source;
    const QString m_key;
    SourceActions::Token m_taking;
};

} // namespace guide

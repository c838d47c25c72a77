#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/ScreenEnvironment.h"
#include "screens/sources/SourceActions.h"

#include <functional>
#include <memory>

namespace guide {

/// Takes the address of a feed or playlist, a file or a program, or offers feeds and programs that are known,
/// reads it, and opens its preview.
class AddSourceViewController final : public TableViewController {
  public:
    struct Start {
        /// Read as soon as the screen appears; may be empty.
        QString input = {};
        /// May be empty.
        std::function<void()> openCatalogue = {};
    };

    AddSourceViewController(std::shared_ptr<const ScreenEnvironment> environment, Start start);

  protected:
    void viewDidLoad() override;
    void viewWillAppear() override { table().deselectRow(); }
    void viewDidAppear() override;
    void rowEvent(const RowId& id, const RowEvent& event) override;

  private:
    void show();
    Section inputSection() const;
    Section readingSection() const;
    Section catalogueSection() const;
    Section feedSection() const;
    Section programSection() const;

    void inputEvent(const QString& name, const RowEvent& event);
    void feedTapped(const QString& name);
    void programTapped(const QString& name);
    void chooseFile();
    void readFeed(const QString& address);
    /// Asks first when it is a program.
    void readAfterQuestion(const QString& input);
    void askToRun(const QString& program);
    void read(const QString& input);
    void proposed(SourceProposal proposal);
    void ask(const QString& title, const QString& message, const QString& action,
             void (AddSourceViewController::*then)(const QString&), const QString& argument);

    SourceActions& actions() const { return *m_environment->sourceActions; }

    const std::shared_ptr<const ScreenEnvironment> m_environment;
    Start m_start;
    QString m_input;
    QString m_problem;
    SourceActions::Token m_reading;
    int m_channels = 0;
    std::int64_t m_bytes = 0;
    /// Finds out whether the input is a program.
    SourceActions::Token m_asking;
    SourceActions::Token m_finding;
    /// The paths of those that were found, of the device's region first.
    QStringList m_programs;
    bool m_showsAllPrograms = false;
};

/// Opens the screen on top of the channels' tab and reads the input: it was dropped on the window or given on
/// the command line.
void addSource(const std::shared_ptr<const ScreenEnvironment>& environment, TabBarController& tabs,
               const QString& input);

} // namespace guide

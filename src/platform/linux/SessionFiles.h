#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// A file with which the user's session starts a program. Its text is a template of the bundle, in which
/// `@PROGRAMS@` means the folder of the programs.
struct SessionFile {
    enum class Kind { Autostart, BusService, SystemdUnit };

    Kind kind = Kind::Autostart;
    /// As in "quellin-guide-agent.service". The template has ".in" after it.
    QString name;
    /// The systemd target that starts the unit, as in "timers.target"; empty for none.
    QString wantedBy = {};
};

/// Writes and removes such files in the user's folders, which the XDG variables name. Any thread, but one at
/// a time; waits for the disk.
class SessionFiles {
  public:
    /// `templates` and `programs` are folders. The first file says whether all of them are in use.
    SessionFiles(QString templates, QString programs, std::vector<SessionFile> files)
        : m_templates(std::move(templates))
        , m_programs(std::move(programs))
        , m_files(std::move(files)) {}

    /// Whether the first file is there and the user has not disabled it elsewhere.
    bool areInUse() const;
    /// Whether the first file starts programs of another folder, such as an earlier one of these.
    bool areOfOtherPrograms() const;
    /// Makes all files what they should be. False when one could not be written: those that the call has
    /// created are then removed again.
    bool write() const;
    /// False when one is left.
    bool remove() const;

  private:
    QString path(const SessionFile& file) const;
    /// Empty for a unit that no target starts.
    QString wantedPath(const SessionFile& file) const;
    /// Nothing without a template, or when the programs are in a folder whose name has a meaning in such
    /// files.
    std::optional<QByteArray> text(const SessionFile& file) const;
    bool writeOne(const SessionFile& file) const;
    bool removeOne(const SessionFile& file) const;

    const QString m_templates;
    const QString m_programs;
    const std::vector<SessionFile> m_files;
};

} // namespace guide

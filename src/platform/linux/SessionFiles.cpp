#include "platform/linux/SessionFiles.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargest = 64 << 10;

/// The XDG specification says to ignore relative paths.
QString userFolder(const char* variable, QLatin1StringView otherwise) {
    const QString value = QFile::decodeName(qgetenv(variable));
    return value.startsWith(u'/') ? value : QDir::homePath() + otherwise;
}

QString folderOf(SessionFile::Kind kind) {
    switch (kind) {
    case SessionFile::Kind::Autostart:
        return userFolder("XDG_CONFIG_HOME", "/.config"_L1) + "/autostart"_L1;
    case SessionFile::Kind::BusService:
        return userFolder("XDG_DATA_HOME", "/.local/share"_L1) + "/dbus-1/services"_L1;
    case SessionFile::Kind::SystemdUnit:
        break;
    }
    return userFolder("XDG_CONFIG_HOME", "/.config"_L1) + "/systemd/user"_L1;
}

} // namespace

QString SessionFiles::path(const SessionFile& file) const {
    return folderOf(file.kind) + u'/' + file.name;
}

QString SessionFiles::wantedPath(const SessionFile& file) const {
    return file.wantedBy.isEmpty() ? QString()
                                   : folderOf(file.kind) + u'/' + file.wantedBy + ".wants/"_L1 + file.name;
}

std::optional<QByteArray> SessionFiles::text(const SessionFile& file) const {
    const QByteArray programs = QFile::encodeName(m_programs);
    const bool isPlain = std::ranges::none_of(programs, [](char each) {
        return (each >= 0 && each < ' ') || QByteArrayView("\"\\$`%").contains(each);
    });
    std::optional<QByteArray> text = fileContent(m_templates + u'/' + file.name + ".in"_L1, kLargest);
    return text && isPlain ? std::optional(text->replace("@PROGRAMS@", programs)) : std::nullopt;
}

bool SessionFiles::areInUse() const {
    const std::optional<QByteArray> text = fileContent(path(m_files.front()), kLargest);
    const bool isStarted = std::ranges::all_of(m_files, [this](const SessionFile& file) {
        const QString link = wantedPath(file);
        return link.isEmpty() || QFileInfo(link).isSymLink();
    });
    // What programs that edit autostart entries write.
    return isStarted && text && !text->contains("\nHidden=true") &&
           !text->contains("\nX-GNOME-Autostart-enabled=false");
}

bool SessionFiles::areOfOtherPrograms() const {
    const std::optional<QByteArray> text = fileContent(path(m_files.front()), kLargest);
    return text && !text->contains('"' + QFile::encodeName(m_programs) + '/');
}

bool SessionFiles::writeOne(const SessionFile& file) const {
    const std::optional<QByteArray> wanted = text(file);
    if (!wanted) {
        return false;
    }
    const QString target = path(file);
    if (fileContent(target, kLargest) != wanted &&
        !(QDir().mkpath(QFileInfo(target).path()) && replaceFile(target, *wanted))) {
        return false;
    }
    const QString link = wantedPath(file);
    if (link.isEmpty() || QFile::symLinkTarget(link) == target) {
        return true;
    }
    QFile::remove(link);
    return QDir().mkpath(QFileInfo(link).path()) && QFile::link(target, link);
}

bool SessionFiles::removeOne(const SessionFile& file) const {
    bool isRemoved = true;
    for (const QString& each : {wantedPath(file), path(file)}) {
        // A link whose target is missing does not exist, either.
        const bool isThere = !each.isEmpty() && (QFileInfo::exists(each) || QFileInfo(each).isSymLink());
        isRemoved = (!isThere || QFile::remove(each)) && isRemoved;
    }
    return isRemoved;
}

bool SessionFiles::write() const {
    std::vector<const SessionFile*> created;
    for (const SessionFile& file : m_files) {
        if (!QFileInfo::exists(path(file))) {
            created.push_back(&file);
        }
        if (!writeOne(file)) {
            qWarning("%s cannot be written", qUtf8Printable(path(file)));
            for (const SessionFile* each : created) {
                removeOne(*each);
            }
            return false;
        }
    }
    return true;
}

bool SessionFiles::remove() const {
    bool areRemoved = true;
    for (const SessionFile& file : m_files) {
        areRemoved = removeOne(file) && areRemoved;
    }
    return areRemoved;
}

} // namespace guide

#pragma once

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace guide::test {

using namespace Qt::StringLiterals;

struct Answer {
    /// -1 when the probe crashed or did not end.
    int status = -1;
    QJsonObject json;
    QByteArray output;
    QByteArray errors;
};

/// Runs the probe and waits for it to end.
inline Answer probe(const QStringList& words, const QByteArray& input = {}) {
    QProcess process;
    process.start(QStringLiteral(QUELLIN_PROBE), words);
    process.write(input);
    process.closeWriteChannel();
    Answer answer;
    if (process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit) {
        answer.status = process.exitCode();
    }
    answer.output = process.readAllStandardOutput();
    answer.errors = process.readAllStandardError();
    answer.json = QJsonDocument::fromJson(answer.output).object();
    return answer;
}

inline QJsonObject object(const QByteArray& json) {
    return QJsonDocument::fromJson(json).object();
}

/// Temporary input files.
class ProbeFiles {
  public:
    /// The path of a new file with this content.
    QString write(const QString& name, const QByteArray& content) const {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("no file for the probe");
        }
        return file.fileName();
    }

  private:
    QTemporaryDir m_folder;
};

} // namespace guide::test

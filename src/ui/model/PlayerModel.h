#pragma once

#include "screens/kit/PlayerContent.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

namespace guide {

/// A player and its controls, for QML.
class PlayerModel : public QObject, private PlayerContentObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page")

    Q_PROPERTY(QString channel READ channel NOTIFY stateUpdated)
    Q_PROPERTY(QUrl icon READ icon NOTIFY stateUpdated)
    Q_PROPERTY(QString title READ title NOTIFY stateUpdated)
    Q_PROPERTY(QString times READ times NOTIFY stateUpdated)
    /// 0 to 1; below 0 when unknown.
    Q_PROPERTY(double progress READ progress NOTIFY stateUpdated)
    Q_PROPERTY(bool waiting READ waiting NOTIFY stateUpdated)
    Q_PROPERTY(bool paused READ paused NOTIFY stateUpdated)
    Q_PROPERTY(double volume READ volume NOTIFY stateUpdated)
    Q_PROPERTY(bool muted READ muted NOTIFY stateUpdated)
    Q_PROPERTY(bool hasOtherChannels READ hasOtherChannels NOTIFY stateUpdated)
    Q_PROPERTY(bool fullScreen READ fullScreen NOTIFY stateUpdated)

  public:
    explicit PlayerModel(PlayerContent& content);
    ~PlayerModel() override;

    QString channel() const { return m_content.state().channel; }
    QUrl icon() const;
    QString title() const { return m_content.state().title; }
    QString times() const { return m_content.state().times; }
    double progress() const { return m_content.state().progress; }
    bool waiting() const { return m_content.state().waiting; }
    bool paused() const { return m_content.state().paused; }
    double volume() const { return m_content.state().volume; }
    bool muted() const { return m_content.state().muted; }
    bool hasOtherChannels() const { return m_content.state().hasOtherChannels; }
    bool fullScreen() const { return m_content.state().fullScreen; }

    Q_INVOKABLE void togglePaused() { m_content.togglePaused(); }
    Q_INVOKABLE void setVolume(double volume) { m_content.setVolume(volume); }
    Q_INVOKABLE void toggleMuted() { m_content.toggleMuted(); }
    Q_INVOKABLE void setFullScreen(bool fullScreen) { m_content.setFullScreen(fullScreen); }
    Q_INVOKABLE void changeChannel(int by) { m_content.changeChannel(by); }
    Q_INVOKABLE void leave() { m_content.leave(); }
    /// The sink of what draws the picture; null before it is destroyed.
    Q_INVOKABLE void setVideoOutput(QObject* sink) { m_content.setVideoOutput(sink); }

  Q_SIGNALS:
    void stateUpdated();

  private:
    void playerStateChanged() override { Q_EMIT stateUpdated(); }

    PlayerContent& m_content;
};

} // namespace guide

#pragma once

#include "platform/Device.h"
#include "screens/kit/PictureProvider.h"
#include "screens/kit/TabBarController.h"

#include <QByteArray>
#include <QLocale>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace guide {

enum class ColorScheme { Light, Dark };

struct GuideWindowOptions {
    UserInterfaceIdiom form = UserInterfaceIdiom::Phone;
    /// The system's scheme where unset.
    std::optional<ColorScheme> scheme = std::nullopt;
    /// The system's where unset; 1 for ordinary text.
    std::optional<double> textScale = std::nullopt;
    /// 390 by 844 for a phone and 1024 by 768 for a tablet where unset.
    std::optional<QSize> size = std::nullopt;
    /// False with reduced motion, and for screenshots.
    bool motion = true;
    /// The device's, for the texts that the window formats itself.
    QLocale locale = QLocale();
    /// Resolves the pictures of the rows, which stay empty without it. Must outlive the window.
    PictureProvider* pictures = nullptr;
    /// Called when the window becomes visible and when it no longer is (minimised, hidden, closed).
    std::function<void(bool visible)> visibilityChanged = {};
    /// Called with an address, or the path of a file, that was dropped on the window. May be empty.
    std::function<void(const QString& input)> dropped = {};
    /// Called when the user closes the window.
    std::function<void()> closed = {};
};

/// The window that draws the screens. Main thread; the QGuiApplication and the tab bar controller must
/// outlive it.
class GuideWindow {
  public:
    GuideWindow(TabBarController& tabBarController, GuideWindowOptions options);
    GuideWindow(const GuideWindow&) = delete;
    GuideWindow& operator=(const GuideWindow&) = delete;
    ~GuideWindow();

    /// False when the QML could not be loaded; the log says why.
    bool loaded() const;
    /// Raises the window if it is open already. The desktop may want the token of the program that caused it.
    void show(const QByteArray& activationToken = {});
    bool visible() const;

    void setColorScheme(std::optional<ColorScheme> scheme);
    void setMotion(bool moves);
    /// The picture of this key has changed; loads it again where it is shown.
    void replacePicture(const PictureKey& key);
    /// Writes what the window shows as a PNG file; false when it could not be written. The window must be
    /// open.
    bool savePicture(const QString& path);

  private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

/// Whether the system has what draws pages of the web. To be called before the QGuiApplication is created,
/// which it then prepares.
bool prepareWebPages();

} // namespace guide

#pragma once

#include "platform/Device.h"
#include "screens/kit/TabBarController.h"

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
    /// 390 by 844 for a phone and 1024 by 768 for a tablet where unset.
    std::optional<QSize> size = std::nullopt;
    /// False where the desktop asks for less motion, and for pictures.
    bool motion = true;
    /// Called when the window becomes visible and when it no longer is (minimised, hidden, closed).
    std::function<void(bool visible)> visibilityChanged = {};
    /// Called when the person closes the window.
    std::function<void()> closed = {};
};

/// The window that draws the screens. Lives on the main thread, after the QGuiApplication and before the
/// screens end: the tab bar controller outlives it.
class GuideWindow {
  public:
    GuideWindow(TabBarController& tabBarController, GuideWindowOptions options);
    GuideWindow(const GuideWindow&) = delete;
    GuideWindow& operator=(const GuideWindow&) = delete;
    ~GuideWindow();

    /// False when the drawing could not be loaded; the reasons stand in the log.
    bool loaded() const;
    /// Also brings a window that is there already before the others.
    void show();
    bool visible() const;

    void setColorScheme(std::optional<ColorScheme> scheme);
    /// Whether things may move.
    void setMotion(bool moves);
    /// Writes what the window shows as a PNG file; false when it could not be written. Needs a shown window.
    bool savePicture(const QString& path);

  private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

/// Loads the device language's texts into the string table; English without one of its own. Once, on the main
/// thread, before the first screen is made.
void installTranslations(const QLocale& locale);

} // namespace guide

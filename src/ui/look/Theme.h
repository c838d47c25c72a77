#pragma once

#include "ui/GuideWindow.h"
#include "ui/look/Palette.h"

#include <QAccessible>
#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QLocale>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include <algorithm>
#include <optional>

namespace guide {

/// A font of the guide, in pixels.
QFont themeFont(double pixels, QFont::Weight weight);

/// The look of one window, for QML: the colours of the scheme, the fonts at the system's text size, and
/// durations; and the locale of its models.
class Theme : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool dark READ dark NOTIFY colorsChanged)
    /// By the number of a colour role.
    Q_PROPERTY(QList<QColor> roles READ roles NOTIFY colorsChanged)
    Q_PROPERTY(QColor label READ label NOTIFY colorsChanged)
    Q_PROPERTY(QColor secondaryLabel READ secondaryLabel NOTIFY colorsChanged)
    Q_PROPERTY(QColor background READ background NOTIFY colorsChanged)
    Q_PROPERTY(QColor groupedBackground READ groupedBackground NOTIFY colorsChanged)
    Q_PROPERTY(QColor tint READ tint NOTIFY colorsChanged)
    Q_PROPERTY(QColor favourite READ favourite NOTIFY colorsChanged)
    Q_PROPERTY(QColor running READ running NOTIFY colorsChanged)
    Q_PROPERTY(QColor alarm READ alarm NOTIFY colorsChanged)
    Q_PROPERTY(QColor heading READ heading NOTIFY colorsChanged)
    Q_PROPERTY(QColor separator READ separator NOTIFY colorsChanged)
    Q_PROPERTY(QColor fieldBorder READ fieldBorder NOTIFY colorsChanged)
    Q_PROPERTY(QColor raised READ raised NOTIFY colorsChanged)
    Q_PROPERTY(QColor tintOnLabel READ tintOnLabel NOTIFY colorsChanged)
    Q_PROPERTY(QColor pressed READ pressed NOTIFY colorsChanged)
    Q_PROPERTY(QColor tintedFill READ tintedFill NOTIFY colorsChanged)
    Q_PROPERTY(QColor onTint READ onTint NOTIFY colorsChanged)
    Q_PROPERTY(QColor onAlarm READ onAlarm NOTIFY colorsChanged)
    Q_PROPERTY(QColor dim READ dim NOTIFY colorsChanged)

    /// The size of the text over the ordinary one.
    Q_PROPERTY(double textScale READ textScale NOTIFY fontsChanged)
    /// The size of symbols over the ordinary one. They grow with the text, but less: they are large already.
    Q_PROPERTY(double symbolScale READ symbolScale NOTIFY fontsChanged)
    Q_PROPERTY(QFont timeFont READ timeFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont endTimeFont READ endTimeFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont titleFont READ titleFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont detailsFont READ detailsFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont channelTitleFont READ channelTitleFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont headingFont READ headingFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont barTitleFont READ barTitleFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont bodyFont READ bodyFont NOTIFY fontsChanged)
    Q_PROPERTY(QFont buttonFont READ buttonFont NOTIFY fontsChanged)

    /// Milliseconds of a push or a pop, of a change within a row, and of a picture's appearance; 0 with
    /// reduced motion.
    Q_PROPERTY(int motion READ motion NOTIFY motionChanged)
    Q_PROPERTY(int rowMotion READ rowMotion NOTIFY motionChanged)
    Q_PROPERTY(int pictureMotion READ pictureMotion NOTIFY motionChanged)
    Q_PROPERTY(bool moves READ moves NOTIFY motionChanged)
    /// How often a picture has been replaced.
    Q_PROPERTY(int pictureChanges READ pictureChanges NOTIFY pictureReplaced)
    /// Whether a screen reader may be running.
    Q_PROPERTY(bool readAloud READ readAloud NOTIFY readAloudChanged)

  public:
    explicit Theme(QObject* parent = nullptr);
    ~Theme() override;

    bool dark() const { return m_scheme == ColorScheme::Dark; }
    QList<QColor> roles() const;
    QColor label() const { return palette().label; }
    QColor secondaryLabel() const { return palette().secondaryLabel; }
    QColor background() const { return palette().background; }
    QColor groupedBackground() const { return palette().groupedBackground; }
    QColor tint() const { return palette().tint; }
    QColor favourite() const { return palette().favourite; }
    QColor running() const { return palette().running; }
    QColor alarm() const { return palette().alarm; }
    QColor heading() const { return palette().heading; }
    QColor separator() const { return palette().separator; }
    QColor fieldBorder() const { return palette().fieldBorder; }
    QColor raised() const { return palette().raised; }
    QColor tintOnLabel() const { return palette().tintOnLabel; }
    QColor pressed() const { return palette().pressed; }
    QColor tintedFill() const { return palette().tintedFill; }
    QColor onTint() const { return palette().onTint; }
    QColor onAlarm() const { return palette().onAlarm; }
    QColor dim() const { return palette().dim; }

    double textScale() const { return m_textScale; }
    double symbolScale() const { return std::min(m_textScale, 1.5); }
    QFont timeFont() const { return font(20, QFont::DemiBold); }
    QFont endTimeFont() const { return font(12, QFont::Normal); }
    QFont titleFont() const { return font(17, QFont::DemiBold); }
    QFont detailsFont() const { return font(13, QFont::Normal); }
    QFont channelTitleFont() const { return font(20, QFont::Bold); }
    QFont headingFont() const { return font(14, QFont::DemiBold); }
    QFont barTitleFont() const { return font(22, QFont::Bold); }
    QFont bodyFont() const { return font(15, QFont::Normal); }
    QFont buttonFont() const { return font(15, QFont::DemiBold); }

    int motion() const { return m_moves ? 200 : 0; }
    int rowMotion() const { return m_moves ? 150 : 0; }
    int pictureMotion() const { return m_moves ? 120 : 0; }
    bool moves() const { return m_moves; }
    bool readAloud() const { return QAccessible::isActive(); }

    int pictureChanges() const { return m_pictureChanges; }
    /// The address under which the picture is loaded, a new one after each replacement. A binding must also
    /// read `pictureChanges`.
    Q_INVOKABLE QUrl currentPicture(const QUrl& picture) const;
    void replacePicture(const QUrl& picture);

    /// A binding must also read `dark`, which they depend on.
    Q_INVOKABLE QColor tileFill(int hue) const { return tileColors(hue, m_scheme).fill; }
    Q_INVOKABLE QColor tileSymbol(int hue) const { return tileColors(hue, m_scheme).symbol; }

    const QLocale& locale() const { return m_locale; }
    /// To be called before the first page is made.
    void setLocale(const QLocale& locale) { m_locale = locale; }
    /// The system's scheme where unset.
    void setScheme(std::optional<ColorScheme> scheme);
    /// The system's text size where unset.
    void setTextScale(std::optional<double> scale);
    void setMoves(bool moves);

    bool eventFilter(QObject* watched, QEvent* event) override;

  Q_SIGNALS:
    void colorsChanged();
    void fontsChanged();
    void motionChanged();
    void readAloudChanged();
    void pictureReplaced();

  private:
    const Palette& palette() const { return paletteOf(m_scheme); }
    QFont font(double points, QFont::Weight weight) const;
    void followSystem();
    void accessibilityActiveChanged(bool) override { Q_EMIT readAloudChanged(); }

    QLocale m_locale;
    std::optional<ColorScheme> m_forcedScheme;
    std::optional<double> m_forcedTextScale;
    ColorScheme m_scheme = ColorScheme::Light;
    double m_textScale = 1;
    bool m_moves = true;
    int m_pictureChanges = 0;
    /// By the picture, the change that replaced it last.
    QHash<QUrl, int> m_replaced;
};

} // namespace guide

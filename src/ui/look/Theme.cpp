#include "ui/look/Theme.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

// The pixel size of ordinary system text, which is a text scale of 1.
constexpr double kOrdinaryPixels = 13.5;
constexpr double kLargestScale = 2.5;

ColorScheme systemScheme() {
    const QPalette system = QGuiApplication::palette();
    const bool dark =
        system.color(QPalette::Window).lightness() < system.color(QPalette::WindowText).lightness();
    return dark ? ColorScheme::Dark : ColorScheme::Light;
}

double systemTextScale() {
    const double pixels = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::clamp(pixels / kOrdinaryPixels, 1.0, kLargestScale);
}

} // namespace

QFont themeFont(double pixels, QFont::Weight weight) {
    QFont font;
    font.setFamilies({u"Noto Sans"_s, u"Noto Color Emoji"_s});
    font.setPixelSize(qRound(pixels));
    font.setWeight(weight);
    return font;
}

Theme::Theme(QObject* parent)
    : QObject(parent) {
    followSystem();
    QCoreApplication::instance()->installEventFilter(this);
    QAccessible::installActivationObserver(this);
}

Theme::~Theme() {
    QAccessible::removeActivationObserver(this);
}

QList<QColor> Theme::roles() const {
    QList<QColor> colors;
    for (int role = 0; role <= static_cast<int>(ColorRole::Heading); ++role) {
        colors << palette()[static_cast<ColorRole>(role)];
    }
    return colors;
}

void Theme::setScheme(std::optional<ColorScheme> scheme) {
    m_forcedScheme = scheme;
    followSystem();
}

void Theme::setTextScale(std::optional<double> scale) {
    m_forcedTextScale = scale;
    followSystem();
}

void Theme::setMoves(bool moves) {
    if (moves != m_moves) {
        m_moves = moves;
        Q_EMIT motionChanged();
    }
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ApplicationFontChange) {
        followSystem();
    }
    return QObject::eventFilter(watched, event);
}

void Theme::followSystem() {
    const ColorScheme scheme = m_forcedScheme ? *m_forcedScheme : systemScheme();
    if (scheme != m_scheme) {
        m_scheme = scheme;
        Q_EMIT colorsChanged();
    }
    const double scale = m_forcedTextScale ? *m_forcedTextScale : systemTextScale();
    if (scale != m_textScale) {
        m_textScale = scale;
        Q_EMIT fontsChanged();
    }
}

QFont Theme::font(double points, QFont::Weight weight) const {
    return themeFont(points * m_textScale, weight);
}

QUrl Theme::currentPicture(const QUrl& picture) const {
    const int change = m_replaced.value(picture);
    if (change == 0) {
        return picture;
    }
    QUrl current = picture;
    current.setQuery(QString::number(change));
    return current;
}

void Theme::replacePicture(const QUrl& picture) {
    m_replaced.insert(picture, ++m_pictureChanges);
    Q_EMIT pictureReplaced();
}

} // namespace guide

#pragma once

#include "screens/kit/TabBarController.h"

#include <QColor>
#include <QQuickPaintedItem>

namespace guide {

/// A symbol drawn in one colour, as large as its item.
class Glyph : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(Symbol symbol READ symbol WRITE setSymbol NOTIFY symbolChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)

  public:
    /// The symbols of the kit, with its values, and those that only ui/ uses.
    enum Symbol {
        AllShows = int(guide::Symbol::AllShows),
        Currently = int(guide::Symbol::Currently),
        Categories = int(guide::Symbol::Categories),
        Search = int(guide::Symbol::Search),
        Schedule = int(guide::Symbol::Schedule),
        SelectedChannels = int(guide::Symbol::SelectedChannels),
        MostWatched = int(guide::Symbol::MostWatched),
        Evening = int(guide::Symbol::Evening),
        Films = int(guide::Symbol::Films),
        Series = int(guide::Symbol::Series),
        Documentaries = int(guide::Symbol::Documentaries),
        Children = int(guide::Symbol::Children),
        News = int(guide::Symbol::News),
        Entertainment = int(guide::Symbol::Entertainment),
        Music = int(guide::Symbol::Music),
        Sports = int(guide::Symbol::Sports),
        Comedies = int(guide::Symbol::Comedies),
        Adventure = int(guide::Symbol::Adventure),
        Crime = int(guide::Symbol::Crime),
        Westerns = int(guide::Symbol::Westerns),
        Dramas = int(guide::Symbol::Dramas),
        Thrillers = int(guide::Symbol::Thrillers),
        ScienceFiction = int(guide::Symbol::ScienceFiction),
        Fantasy = int(guide::Symbol::Fantasy),
        Horrors = int(guide::Symbol::Horrors),
        Recent = int(guide::Symbol::Recent),
        Warning = int(guide::Symbol::Warning),
        Bell = int(guide::Symbol::Bell),
        Moved = int(guide::Symbol::Moved),
        Removed = int(guide::Symbol::Removed),
        Refresh = 100,
        Play,
        Back,
        Disclosure,
        Activity,
        Check,
        Close,
        Delete,
        Reorder,
        Heart,
        Star,
        Unfold,
        Picture,
        StarOutline,
        Film,
        Globe,
        Past,
        Link,
        Info,
        Pause,
        Sound,
        NoSound,
        FullScreen,
        Window,
        Previous,
        Next,
        Options,
        Eye,
        EyeCrossed,
    };
    Q_ENUM(Symbol)

    explicit Glyph(QQuickItem* parent = nullptr);

    Symbol symbol() const { return m_symbol; }
    void setSymbol(Symbol symbol);
    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    void paint(QPainter* painter) override;

  Q_SIGNALS:
    void symbolChanged();
    void colorChanged();

  private:
    Symbol m_symbol = Currently;
    QColor m_color;
};

} // namespace guide

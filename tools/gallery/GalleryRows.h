#pragma once

#include "screens/Localized.h"
#include "screens/kit/PictureProvider.h"
#include "screens/kit/TableViewController.h"

#include <QPainter>
#include <QString>

namespace guide::test {

using namespace Qt::StringLiterals;

/// Draws a picture for every key: a gradient with the key's name.
struct GalleryPictures final : PictureProvider {
    QImage picture(const PictureKey& key, const QSize& pixels) override {
        if (key.name == "missing"_L1) {
            return {};
        }
        QImage image(pixels.isEmpty() ? QSize(100, 72) : pixels, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        if (key.kind == PictureKey::Kind::QRCode) {
            drawCode(painter, image.size());
            return image;
        }
        const int hue = static_cast<int>(qHash(key.name) % 360);
        QLinearGradient gradient(0, 0, image.width(), image.height());
        gradient.setColorAt(0, QColor::fromHsl(hue, 120, 150));
        gradient.setColorAt(1, QColor::fromHsl((hue + 60) % 360, 120, 80));
        painter.setBrush(gradient);
        painter.setPen(Qt::NoPen);
        const double radius = key.kind == PictureKey::Kind::ChannelIcon ? image.height() / 5.0 : 0;
        painter.drawRoundedRect(image.rect(), radius, radius);
        QFont font(u"Noto Sans"_s);
        font.setPixelSize(image.height() / 2);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(image.rect(), Qt::AlignCenter, key.name.left(2));
        return image;
    }

  private:
    static void drawCode(QPainter& painter, const QSize& size) {
        constexpr int kModules = 25;
        const double side = double(size.width()) / kModules;
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (int y = 0; y < kModules; ++y) {
            for (int x = 0; x < kModules; ++x) {
                if ((x * x + 3 * y + x * y) % 5 < 2) {
                    painter.fillRect(QRectF(x * side, y * side, side + 1, side + 1), Qt::black);
                }
            }
        }
    }
};

/// A screen with fixed sections.
class GalleryScreen final : public TableViewController {
  public:
    GalleryScreen(const QString& title, std::vector<Section> sections) {
        setTitle(title);
        table().setSections(std::move(sections));
    }

    using ViewController::setLeftBarButtons;
    using ViewController::setProgress;
    using ViewController::setRefreshing;
    using ViewController::setRightBarButtons;
    using ViewController::setSearchField;

  protected:
    std::vector<RowAction> actionsForRow(const RowId&) override {
        return {{u"⏰"_s, u"Set alarm"_s, ColorRole::Tint, [] {}},
                {u"⭐"_s, u"Add to favourites"_s, ColorRole::Favourite, [] {}},
                {u"Remove"_s, {}, ColorRole::Alarm, [] {}}};
    }
};

inline PictureKey icon(const QString& name) {
    return {PictureKey::Kind::ChannelIcon, name};
}
inline PictureKey showPicture(const QString& name) {
    return {PictureKey::Kind::Show, name};
}

/// A section whose rows have their positions as ids.
inline Section section(const QString& id, const QString& header, std::vector<RowContent> contents,
                       const QString& footer = {}) {
    Section made{id, header, footer};
    for (RowContent& content : contents) {
        Row row{{id, QString::number(made.rows.size())}, std::move(content)};
        row.selectable = true;
        made.rows.push_back(std::move(row));
    }
    return made;
}

inline std::vector<Section> galleryShows() {
    const QString longTitle = u"Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa za osmdesát dní"_s;
    const QString longDetails =
        u"Dobrodružný film ČR/Francie (2019). Mladý hřebec uteče ze stáda a vydá se za hlasem, který slyší "
        u"jen on. "
        u"Cestou potká lidi, kteří mu rozumějí víc, než čekal, a pochopí, že domov je tam, kde na něj čekají."_s;
    const ShowRow plain{.startTime = u"18:00"_s, .endTime = u"18:45"_s, .title = u"Noční proud"_s};
    const ShowRow tomorrow{
        .day = u"Thu"_s, .startTime = u"00:10"_s, .endTime = u"01:00"_s, .title = u"Film po půlnoci"_s};
    const ShowRow later{.day = u"31/12/2026"_s,
                        .startTime = u"20:00"_s,
                        .endTime = u"21:00"_s,
                        .title = u"Silvestr"_s,
                        .details = u"Zábavný pořad, živě ze všech studií"_s};
    ShowRow running{.startTime = u"18:45"_s,
                    .endTime = u"20:00"_s,
                    .title = u"Večerní zprávy"_s,
                    .details = u"Události dne doma i ve světě"_s,
                    .timeColor = ColorRole::Running,
                    .running = true,
                    .progress = 0.6};
    ShowRow favourite{.startTime = u"20:00"_s,
                      .endTime = u"22:10"_s,
                      .title = longTitle,
                      .details = longDetails,
                      .timeColor = ColorRole::Favourite,
                      .favourite = true};
    ShowRow alarmed{.startTime = u"22:10"_s,
                    .endTime = u"23:00"_s,
                    .title = u"Doktoři z pohoří"_s,
                    .details = u"Seriál ČR (2024)"_s,
                    .timeColor = ColorRole::Alarm,
                    .favourite = true,
                    .alarmed = true,
                    .popular = true,
                    .accessory = Accessory::Disclosure};
    ShowRow allDetails = favourite;
    allDetails.allDetails = true;
    allDetails.accessory = Accessory::Disclosure;
    ShowRow picture = running;
    picture.picture = showPicture(u"Zprávy"_s);
    ShowRow mixed = alarmed;
    mixed.channelIcon = icon(u"Duna"_s);
    mixed.alarmLead = u"10 min"_s;
    ShowRow full = favourite;
    full.channelIcon = icon(u"Kino"_s);
    full.picture = showPicture(u"Kůň"_s);
    full.popular = true;
    full.accessory = Accessory::Disclosure;
    return {section(u"states"_s, u"Wednesday 31 December 2025"_s,
                    {plain, running, favourite, alarmed, tomorrow, later}),
            section(u"pictures"_s, u"Thursday 1 January 2026"_s, {picture, mixed, full, allDetails})};
}

inline std::vector<Section> galleryChannels() {
    std::vector<Section> sections{
        section(u"head"_s, {},
                {ChannelRow{u"Žlutá jedna"_s, u"Updated 31.12.2025 18:04"_s, icon(u"Žlutá"_s), false,
                            Accessory::Disclosure},
                 ShowRow{.startTime = u"18:00"_s, .endTime = u"19:00"_s, .title = u"Noční proud"_s}}),
        section(u"play"_s, {},
                {ChannelRow{u"Kino Večer"_s, {}, icon(u"Kino"_s), false, Accessory::Play},
                 ShowRow{.startTime = u"18:00"_s, .endTime = u"19:00"_s, .title = u"Café de la Gare"_s}}),
        section(u"failed"_s, {},
                {ChannelRow{u"Arte Nord"_s, u"No answer from feeds.example"_s, icon(u"Arte"_s)},
                 ButtonRow{u"Try again"_s}}),
        section(u"old"_s, {},
                {ChannelRow{u"Duna"_s, u"Updated 31.12.2025 18:04 · Status 404 from feeds.example"_s,
                            icon(u"Duna"_s), false, Accessory::Disclosure},
                 ShowRow{.startTime = u"18:00"_s, .endTime = u"19:00"_s, .title = u"Híradó este"_s}}),
        section(
            u"choose"_s, u"Catalogue"_s,
            {ChannelRow{u"Televízia Šport a príroda s veľmi dlhým názvom kanála"_s, u"Slovak"_s,
                        icon(u"Šport"_s), true},
             ChannelRow{u"Arte Nord"_s, {}, icon(u"Arte"_s)},
             ChannelRow{u"Loading"_s, u"No schedule yet"_s, icon(u"missing"_s), false, Accessory::Spinner}}),
        section(u"edit"_s, u"Reorderable"_s,
                {ChannelRow{u"Duna"_s, u"Feed, 2 hours old"_s, icon(u"Duna"_s)},
                 ChannelRow{u"Țara 24"_s, u"Feed, 20 minutes old"_s, icon(u"Țara"_s)}})};
    for (Row& row : sections.back().rows) {
        row.deletable = true;
        row.movable = true;
    }
    return sections;
}

inline std::vector<Section> gallerySettings() {
    const QString explanation =
        u"Pictures are loaded when the row comes into view. Without them the guide needs far less data."_s;
    Section texts = section(
        u"text"_s, u"Text"_s,
        {TextRow{u"Title only"_s},
         TextRow{u"With a subtitle"_s, u"One line of explanation below the title"_s},
         TextRow{u"With a detail"_s, {}, u"3 of 24"_s, ColorRole::Label, false, Accessory::Disclosure},
         TextRow{u"Checked"_s, {}, {}, ColorRole::Label, true},
         TextRow{u"With an icon"_s,
                 u"Slovak"_s,
                 {},
                 ColorRole::Label,
                 false,
                 Accessory::Disclosure,
                 icon(u"Arte"_s)},
         TextRow{u"A long title that needs more than the one line that most titles of rows need"_s,
                 u"And a subtitle that is long as well, so that both of them wrap onto another line"_s,
                 u"Value"_s},
         TextRow{u"Destructive"_s, {}, {}, ColorRole::Alarm},
         TextRow{u"Working"_s, {}, {}, ColorRole::Label, false, Accessory::Spinner}});
    texts.rows[3].selectable = false;
    return {
        texts,
        section(u"switch"_s, u"Switches"_s,
                {SwitchRow{u"Pictures of shows"_s, {}, true},
                 SwitchRow{u"Pictures in the background"_s, u"Also while the guide is not open"_s, false},
                 SwitchRow{u"Not available, on"_s, {}, true, false},
                 SwitchRow{u"Not available, off"_s, {}, false, false}},
                explanation),
        section(u"choice"_s, u"Values"_s,
                {ChoiceRow{u"Shows per channel"_s, {u"2"_s, u"4"_s, u"6"_s}, 1},
                 ChoiceRow{u"Nothing chosen"_s, {u"A"_s}, {}},
                 ChoiceRow{u"A question with a long title"_s, {u"Every premiere on any of my channels"_s}, 0},
                 ChoiceRow{u"Not available"_s, {u"A"_s}, 0, false}, TimeRow{u"Silence from"_s, QTime(22, 30)},
                 TimeRow{u"Not available"_s, QTime(6, 0), false},
                 DayBarRow{{{0, 6 * 60}, {22 * 60 + 30, 24 * 60}},
                           {u"00:00"_s, u"06:00"_s, u"12:00"_s, u"18:00"_s, u"24:00"_s},
                           u"Silent from 22:30 to 06:00"_s}})};
}

inline std::vector<Section> galleryForms() {
    using Kind = InputRow::Kind;
    return {section(u"input"_s, u"Fields"_s,
                    {InputRow{Kind::Text, u"Name"_s, u"My feed"_s, {}, {}},
                     InputRow{Kind::URL, u"Address"_s, {}, u"https://example.org/feed.xml"_s, {}},
                     InputRow{Kind::Password, u"Password"_s, u"secret"_s, {}, {}},
                     InputRow{
                         Kind::Number, u"Port"_s, u"80a"_s, {}, u"A port is a number between 1 and 65535."_s},
                     InputRow{Kind::Text, {}, {}, u"Without a title"_s, {}, false}}),
            section(u"button"_s, u"Buttons"_s,
                    {ButtonRow{u"Choose a file…"_s},
                     ButtonRow{u"Remove all data"_s, ButtonRow::Style::Destructive},
                     ButtonRow{u"Not available"_s, ButtonRow::Style::Plain, false},
                     ButtonRow{u"Add 12 channels"_s, ButtonRow::Style::Primary},
                     ButtonRow{u"Not available"_s, ButtonRow::Style::Primary, false}}),
            section(u"progress"_s, u"Progress"_s,
                    {ProgressRow{u"Reading the feed"_s, 0.4}, ProgressRow{u"Connecting"_s, {}}})};
}

inline std::vector<Section> galleryPictures() {
    using Shape = PictureRow::Shape;
    return {section(u"wide"_s, {}, {PictureRow{showPicture(u"Kůň"_s), Shape::Wide, u"A horse"_s}}),
            section(u"none"_s, u"Without its picture"_s,
                    {PictureRow{showPicture(u"missing"_s), Shape::Wide, u"Nothing"_s}}),
            section(u"code"_s, u"A code"_s,
                    {PictureRow{{PictureKey::Kind::QRCode, u"x"_s}, Shape::Square, u"A code"_s}})};
}

inline std::vector<Section> galleryShowPage() {
    std::vector<ActionButton> buttons{{ActionSymbol::Favourite, u"Favourite"_s, true},
                                      {ActionSymbol::Alert, u"Alert"_s},
                                      {ActionSymbol::Play, u"Play"_s},
                                      {ActionSymbol::Trailer, u"Trailer"_s},
                                      {ActionSymbol::Pictures, u"Pictures"_s},
                                      {ActionSymbol::WebPage, u"IMDb"_s},
                                      {ActionSymbol::Broadcasts, u"More broadcasts"_s},
                                      {ActionSymbol::PastBroadcasts, u"Past broadcasts"_s},
                                      {ActionSymbol::CopyLink, u"Copy link"_s}};
    buttons.back().enabled = false;
    Section actions = section(u"actions"_s, {}, {ActionsRow{std::move(buttons)}});
    actions.rows.front().selectable = false;
    return {
        section(
            u"head"_s, {},
            {HeadRow{.picture = showPicture(u"Kůň"_s),
                     .title = u"The Horse, the Lighthouse and a Very Long Way Home"_s,
                     .channelIcon = icon(u"Jedn"_s),
                     .facts = u"Jednička · Today · 20:15–22:00 · 1 h 45 min · Replay · British film, 2009"_s,
                     .status = u"On now · 35 min left"_s,
                     .running = true,
                     .progress = 0.66}}),
        std::move(actions),
        section(u"description"_s, u"Description:"_s,
                {ParagraphRow{u"A horse walks home along the coast.\nIt takes its time."_s}})};
}

inline std::vector<Section> galleryTiles() {
    Section tiles = section(
        u"tiles"_s, u"Categories"_s,
        {TextRow{
             u"Films"_s, u"24 today"_s, {}, ColorRole::Label, false, Accessory::Disclosure, icon(u"Film"_s)},
         TextRow{u"Series"_s, u"101 today"_s, {}, ColorRole::Label, false, Accessory::None, icon(u"Seri"_s)},
         TextRow{u"Documentaries and nature"_s,
                 u"8 today"_s,
                 {},
                 ColorRole::Label,
                 false,
                 Accessory::None,
                 icon(u"Docu"_s)},
         TextRow{u"Sport"_s, u"12 today"_s, {}, ColorRole::Label, true, Accessory::None, icon(u"Spor"_s)},
         TextRow{u"Without an icon"_s, u"None today"_s}},
        u"Films open a second level."_s);
    tiles.layout = SectionLayout::Tiles;
    std::vector<Section> sections{tiles};
    for (const QString& letter : {u"A"_s, u"B"_s, u"C"_s, u"Č"_s, u"D"_s}) {
        sections.push_back(
            section(letter, letter, {TextRow{letter + u"lpha"_s}, TextRow{letter + u"ndere"_s}}));
        sections.back().indexTitle = letter;
    }
    return sections;
}

} // namespace guide::test

#pragma once

#include "screens/ScreenWorld.h"

#include <QColor>
#include <QImage>
#include <QPainter>

namespace guide::test {

/// A plain icon for a channel: its first letter on a plate.
inline void writeIcon(const QString& folder, const QString& name, const QColor& color) {
    QImage icon(200, 144, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(icon.rect().adjusted(4, 4, -4, -4), 32, 32);
    QFont font;
    font.setFamilies({u"Noto Sans"_s});
    font.setPixelSize(84);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(icon.rect(), Qt::AlignCenter, name.left(2));
    painter.end();
    icon.save(folder + u'/' + name + u".png"_s);
}

/// An evening on channels of several languages, with every kind of row.
inline void fillWithEvening(ScreenWorld& world) {
    world.device.deviceLocale = QLocale(QLocale::Czech, QLocale::Czechia);
    world.device.zone = QTimeZone("Europe/Prague");
    world.clock.set(world.begin + 47min);
    const QString folder = world.folder.path();
    const std::vector<std::pair<QString, QColor>> names{
        {u"Žlutá jedna"_s, QColor(0xd9, 0x8b, 0x00)},
        {u"Duna Csillag"_s, QColor(0x2c, 0x7a, 0x4b)},
        {u"Țara 24"_s, QColor(0x1f, 0x5f, 0xbf)},
        {u"Новый день"_s, QColor(0xb5, 0x2b, 0x4a)},
        {u"Televízia Šport a príroda"_s, QColor(0x5b, 0x3f, 0xa8)},
        {u"Kino Večer"_s, QColor(0x30, 0x30, 0x38)},
        {u"Arte Nord"_s, QColor(0xe0, 0x4e, 0x1a)}};
    std::vector<ObjectId> ids;
    for (const auto& [name, color] : names) {
        writeIcon(folder, name, color);
        ids.push_back(world.addChannel(
            name, true, name == u"Kino Večer"_s ? std::optional(u"http://127.0.0.1/kino"_s) : std::nullopt));
    }
    world.start();
    world.favorites.titles = {u"Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa"_s,
                              u"Večerní zprávy"_s};
    world.setAlarm(ids[1], {20, 110, u"Ősi titkok nyomában"_s});
    world.popular.titles = {u"Doktoři z pohoří"_s, u"Вечерний концерт для скрипки с оркестром"_s};

    std::vector<WorldShow> week{
        {0,
         65,
         u"Doktoři z pohoří"_s,
         u"Seriál ČR (2024), Návrat ztraceného syna (12/26)"_s,
         {},
         0,
         {},
         everyFact(u"Die Bergärzte und ihre nicht immer einfachen Kinder"_s)},
        {65, 80, u"Večerní zprávy"_s, u"Události dne doma i ve světě"_s},
        {80, 190, u"Příliš žluťoučký kůň a jeho podivuhodná cesta kolem světa"_s,
         u"Dobrodružný film ČR/Francie (2019). Mladý hřebec uteče ze stáda a vydá se za hlasem, který "
         u"slyší jen on. Cestou potká lidi, kteří mu rozumějí víc, než čekal."_s},
        {190, 250, u"Noční proud"_s, {}},
    };
    for (int day = 0; day < 6; ++day) {
        const int at = 250 + day * 1440;
        week.push_back({at, at + 420, u"Vysílání pro nespavce"_s, u"Hudba a obrazy"_s});
        week.push_back({at + 420, at + 540, u"Dobré ráno"_s, u"Živě ze studia, počasí a hosté"_s});
        week.push_back({at + 540, at + 600, u"Kuchařka naší babičky"_s, u"Svíčková na smetaně"_s});
        week.push_back(
            {at + 600, at + 720, u"Film po obědě: Ztracený ostrov"_s,
             u"Rodinný film Itálie (1987), Režie: M. Bianchi. Tři sourozenci najdou na půdě mapu."_s});
        week.push_back({at + 720, at + 1440, u"Odpolední mozaika"_s, u"Magazín"_s});
    }
    world.load(ids[0], week);
    world.load(ids[1],
               {{20, 110, u"Ősi titkok nyomában"_s, u"Magyar dokumentumfilm-sorozat, A hegyek őrzői"_s},
                {110, 170, u"Híradó este"_s, {}},
                {170, 260, u"Tűz és víz között"_s, u"Romantikus vígjáték, 2021"_s},
                {260, 300, u"Éjszakai zene"_s, {}}});
    world.load(ids[2],
               {{30, 48, u"Știrile serii"_s, u"Informații din țară și din lume"_s},
                {48, 120, u"Călătorie spre inima munților ❤️ cu prietenii de altădată"_s,
                 u"Documentar, România, 2023"_s},
                {120, 200, u"Fotbal: Științele – Înainte"_s, u"Liga întâi, etapa a 12-a, în direct"_s}});
    world.load(ids[3], {{-30, 75, u"Вечерний концерт для скрипки с оркестром"_s, u"Музыка, 2022"_s},
                        {75, 140, u"Тайны старого города"_s, u"Документальный фильм, Россия"_s},
                        {140, 220, u"Погода и новости"_s, {}}});
    world.load(ids[4],
               {{-60, 60, u"Hokej: Žilina – Košice"_s, u"Priamy prenos, 3. tretina"_s},
                {60, 120, u"Divoké rieky Slovenska"_s, u"Prírodopisný cyklus (4/8): Ľubochnianka"_s}});
    world.load(ids[5], {{10, 130, u"The Longest Night"_s, u"Thriller, UK (2018)"_s},
                        {130, 240, u"Café de la Gare"_s, u"Comédie dramatique, France (2009)"_s}});
}

} // namespace guide::test

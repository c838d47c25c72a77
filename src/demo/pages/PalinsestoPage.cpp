#include "demo/pages/Pages.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMorning = 6;
constexpr int kDaysAhead = 7;

QString kindWord(Topic topic) {
    switch (topic) {
    case Topic::Comedy:
    case Topic::Drama:
    case Topic::Crime:
    case Topic::Thriller:
    case Topic::ScienceFiction:
    case Topic::Fantasy:
    case Topic::Horror:
    case Topic::Western:
    case Topic::Adventure:
    case Topic::Romance:
        return u"CINEMA"_s;
    case Topic::Series:
    case Topic::CrimeSeries:
    case Topic::ComedySeries:
        return u"FICTION/SERIE TV"_s;
    case Topic::Documentary:
        return u"CULTURA"_s;
    case Topic::Children:
        return u"CARTONI ANIMATI"_s;
    case Topic::News:
    case Topic::Weather:
        return u"INFORMAZIONE"_s;
    case Topic::Sports:
        return u"SPORT"_s;
    case Topic::Entertainment:
    case Topic::Quiz:
    case Topic::Magazine:
    case Topic::Music:
        return u"INTRATTENIMENTO"_s;
    case Topic::None:
        break;
    }
    return u"--"_s;
}

QString row(const SiteClock& clock, const Programme& programme) {
    const auto element = [](const QString& name, const QString& text) {
        return u"<%1>%2</%1>\n"_s.arg(name, text.isEmpty() ? u"--"_s : escapedMarkup(text));
    };
    return u"<prg orainizio=\"%1\" orafine=\"%2\" primaTv=\"%3\">\n"_s.arg(
               clock.time(programme.start), clock.time(programme.stop),
               programme.repeat ? u"No"_s : u"Si"_s) +
           element(u"titolo"_s, programme.title.toUpper()) +
           element(u"descrizione"_s, programme.description) +
           element(u"anno"_s, programme.year > 0 ? QString::number(programme.year) : QString()) +
           element(u"paese"_s, programme.country) + element(u"regia"_s, programme.director) +
           element(u"tipologia"_s, kindWord(programme.topic)) + u"</prg>\n"_s;
}

} // namespace

// No sections: every programme has all its data in attributes.
std::optional<QByteArray> freePalinsestoPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Rome");
    if (request.path != "/dati/palinsesto/palinsesto.xml"_L1) {
        return std::nullopt;
    }
    QString text = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<palinsesto>\n<programmi>\n"_s;
    const QDate today = clock.date(request.now);
    for (const SiteChannel& channel : request.channels) {
        for (const Programme& programme : channel.programmes(clock.at(today.addDays(-1), kMorning),
                                                             clock.at(today.addDays(kDaysAhead), kMorning))) {
            text += u"<programma idref=\"%1\" timestamp=\"%2\" durata=\"%3\" titolo=\"%4\"/>\n"_s.arg(
                channel.sourceId.sliced(1), clock.text(programme.start, u"yyyyMMddHHmm"_s),
                QString::number(
                    std::chrono::duration_cast<std::chrono::minutes>(programme.stop - programme.start)
                        .count()),
                escapedMarkup(programme.title.toUpper()));
        }
    }
    return (text + u"</programmi>\n</palinsesto>\n"_s).toUtf8();
}

// One section per day, from six to six, and in it one section per channel.
std::optional<QByteArray> payPalinsestoPage(const SiteRequest& request) {
    const SiteClock clock("Europe/Rome");
    if (request.path != "/export/palinsesto.xml"_L1) {
        return std::nullopt;
    }
    QString text = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<palinsesto>\n"_s;
    for (int i = -1; i < kDaysAhead; ++i) {
        const QDate date = clock.date(request.now).addDays(i);
        text += u"<giorno data=\"%1\">\n"_s.arg(date.toString(u"yyyy/MM/dd"_s));
        for (const SiteChannel& channel : request.channels) {
            text += u"<canale id=\"%1\" nome=\"%2\">\n"_s.arg(channel.sourceId.sliced(1),
                                                              escapedMarkup(channel.title));
            for (const Programme& programme : clock.day(channel, date, kMorning)) {
                text += row(clock, programme);
            }
            text += u"</canale>\n"_s;
        }
        text += u"</giorno>\n"_s;
    }
    return (text + u"</palinsesto>\n"_s).toUtf8();
}

} // namespace guide

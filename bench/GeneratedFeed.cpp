#include "GeneratedFeed.h"

#include <array>
#include <cstdio>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace guide::bench {

namespace {

constexpr int kPictureArchives = 60;

using Words = std::vector<std::string_view>;

struct Language {
    std::string_view code;
    Words openings;
    Words nouns;
    Words verbs;
    Words joints;
    Words firstNames;
    Words lastNames;
    Words titles;
    Words categories;
    /// Between the title and the number of an episode.
    std::string_view episode;
    std::string_view bracket;
    /// The words before cast and director in a description; empty where the feed has elements for them.
    std::string_view cast;
    std::string_view director;
};

const std::array<Language, 6>& languages() {
    static const std::array<Language, 6> all{{
        {"cs",
         {"Mladý", "Záhadný", "Někdejší", "Osamělá", "Třeskutě vtipný", "Šťastná", "Krátký", "Živý",
          "Poslední"},
         {"vyšetřovatel", "učitelka", "příběh", "městečko", "tajemství", "vražda", "dědictví", "zámek",
          "řeka", "láska", "cestovatel", "šéfkuchař", "zahrada", "přítel", "výprava", "nemocnice", "kůň",
          "princezna"},
         {"pátrá po", "zachraňuje", "se vrací do", "objevuje", "ztrácí", "se loučí s", "přesvědčuje",
          "střeží", "potkává", "zjišťuje, že čeká", "bojuje o", "tají před světem"},
         {"a", "ale", "když", "zatímco", "protože", "dokud"},
         {"Jiří", "Zdeněk", "Lukáš", "Tereza", "Božena", "Věra", "Ondřej"},
         {"Dvořák", "Černý", "Procházková", "Růžička", "Šťastný", "Němcová", "Kříž"},
         {"Případy z podhradí", "Večerní zprávy", "Svět na talíři", "Řeka života", "Ordinace na kopci",
          "Poslední šance", "Ztracená Praha", "Zápisník z cest", "Dva proti všem", "Hřiště"},
         {"Dokument", "Seriál", "Zpravodajství", "Zábava", "Film", "Pro děti", "Sport"},
         ", díl ",
         "[krimi]",
         "",
         ""},
        {"hr",
         {"Mlada", "Zagonetni", "Bivši", "Neustrašiva", "Duhoviti", "Umorni", "Kratki", "Slavna",
          "Posljednji"},
         {"istražitelj", "učiteljica", "priča", "gradić", "tajna", "ubojstvo", "nasljedstvo", "dvorac",
          "rijeka", "ljubav", "putnik", "kuhar", "vrt", "prijatelj", "ekspedicija", "bolnica", "konj",
          "kraljevna"},
         {"traga za", "spašava", "vraća se u", "otkriva", "gubi", "oprašta se od", "uvjerava", "čuva",
          "upoznaje", "doznaje da postoji", "bori se za", "skriva od svijeta"},
         {"i", "ali", "kada", "dok", "jer", "sve dok"},
         {"Željko", "Krešimir", "Snježana", "Marija", "Đurđica", "Ivan", "Tomislav"},
         {"Horvat", "Kovačević", "Jurić", "Božić", "Živković", "Perić", "Čačić"},
         {"Dnevnik s mora", "Vrijeme za stolom", "Tajne otoka", "Zvijezde i ljudi", "Kuća na rubu",
          "Zadnja prilika", "Zagrebačke noći", "Putopis", "Dvoje protiv svih", "Nogometni studio"},
         {"dokumentarni", "serija", "informativni", "zabava", "igrani film", "dječji", "sport"},
         ", epizoda ",
         "[krimi]",
         "Uloge: ",
         "Redatelj: "},
        {"hu",
         {"Fiatal", "Rejtélyes", "Egykori", "Magányos", "Szellemes", "Fáradt", "Rövid", "Híres", "Utolsó"},
         {"nyomozó", "tanítónő", "történet", "városka", "titok", "gyilkosság", "örökség", "kastély", "folyó",
          "szerelem", "utazó", "szakács", "kert", "barát", "expedíció", "kórház", "ló", "hercegnő"},
         {"kutatja", "megmenti", "visszatér ide:", "felfedezi", "elveszíti", "búcsúzik tőle:", "meggyőzi",
          "őrzi", "megismeri", "megtudja, hol van", "harcol érte:", "titkolja"},
         {"és", "de", "amikor", "miközben", "mert", "amíg"},
         {"Gábor", "Zsófia", "László", "Ágnes", "Péter", "Éva", "Dénes"},
         {"Szabó", "Kovács", "Tóth", "Németh", "Fekete", "Szűcs", "Győri"},
         {"Esti híradó", "Gasztroangyal a kertben", "A folyó élete", "Doktor a hegyen", "Az utolsó esély",
          "Elveszett Buda", "Útinapló", "Ketten mindenki ellen", "Stadion", "Őszi mesék"},
         {"dokumentumfilm", "sorozat", "hírműsor", "szórakoztató", "játékfilm", "gyerekeknek", "sport"},
         ", rész ",
         "[bűnügyi]",
         "",
         ""},
        {"it",
         {"Un giovane", "Un misterioso", "Un vecchio", "Una sola", "Un divertente", "Uno stanco", "Un breve",
          "Una celebre", "L'ultimo"},
         {"detective", "maestra", "racconto", "paese", "segreto", "delitto", "eredità", "castello", "fiume",
          "amore", "viaggiatore", "cuoco", "giardino", "amico", "spedizione", "ospedale", "cavallo",
          "principessa"},
         {"cerca", "salva", "torna verso", "scopre", "perde", "saluta", "convince", "custodisce", "incontra",
          "capisce perché esiste", "lotta per", "nasconde al mondo"},
         {"e", "però", "quando", "mentre", "perché", "finché"},
         {"Niccolò", "Giulia", "Matteo", "Beatrice", "Loredana", "Ettore", "Mosè"},
         {"Rossi", "Bianchi", "Ferrari", "De Luca", "Greco", "Fontanà", "Conti"},
         {"Telegiornale della sera", "Il mondo nel piatto", "La città perduta", "Il fiume della vita",
          "Medico in collina", "L'ultima occasione", "Taccuino di viaggio", "Due contro tutti",
          "Domenica allo stadio", "È quasi notte"},
         {"Documentario", "Serie", "Notizie", "Intrattenimento", "Film", "Bambini", "Calcio"},
         ", episodio ",
         "[azione]",
         "",
         ""},
        {"de",
         {"Der junge", "Die rätselhafte", "Der frühere", "Die einsame", "Der schlagfertige", "Der müde",
          "Das kurze", "Die berühmte", "Der letzte"},
         {"Ermittler", "Lehrerin", "Geschichte", "Städtchen", "Geheimnis", "Mord", "Erbschaft", "Schloss",
          "Fluss", "Liebe", "Reisende", "Köchin", "Garten", "Freund", "Expedition", "Krankenhaus", "Pferd",
          "Prinzessin"},
         {"sucht", "rettet", "kehrt zurück zu", "entdeckt", "verliert", "verabschiedet", "überzeugt", "hütet",
          "trifft", "begreift", "kämpft für", "verbirgt vor der Welt"},
         {"und", "aber", "als", "während", "weil", "bis"},
         {"Jürgen", "Käthe", "Günther", "Annemarie", "Björn", "Ursula", "Matthias"},
         {"Müller", "Schäfer", "Groß", "Köhler", "Weiß", "Krüger", "Lindemann"},
         {"Nachrichten am Abend", "Die Welt auf dem Teller", "Der Fluss", "Praxis am Berg", "Letzte Chance",
          "Verlorenes München", "Reisetagebuch", "Zwei gegen alle", "Sportschau", "Über den Dächern"},
         {"Dokumentation", "Serie", "Nachrichten", "Unterhaltung", "Spielfilm", "Kinder", "Fußball"},
         ", Folge ",
         "[Krimi]",
         "",
         ""},
        {"en",
         {"A young", "A mysterious", "A former", "One lonely", "A witty", "A weary", "A short",
          "The celebrated", "The last"},
         {"detective", "teacher", "story", "town", "secret", "murder", "inheritance", "castle", "river",
          "love", "traveller", "chef", "garden", "friend", "expedition", "hospital", "horse", "princess"},
         {"searches for", "rescues", "returns to", "discovers", "loses", "says goodbye to", "convinces",
          "guards", "meets", "learns about", "fights for", "hides from the world"},
         {"and", "but", "when", "while", "because", "until"},
         {"George", "Zoë", "Luke", "Theresa", "Beth", "Vera", "Andrew"},
         {"Black", "Walker", "Rose", "O'Brien", "Newman", "Cross", "Field"},
         {"Evening News", "The World on a Plate", "River of Life", "The Hill Practice", "Last Chance",
          "Lost London", "Travel Notes", "Two Against All", "Match Day", "Late Supper Show"},
         {"Documentary", "Series", "News", "Entertainment", "Movie", "Children", "Sports"},
         ", Part ",
         "[Action]",
         "",
         ""},
    }};
    return all;
}

/// The standard engine yields the same numbers everywhere; the standard distributions do not.
class Choice {
  public:
    explicit Choice(std::uint64_t seed)
        : m_engine(seed) {}
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(m_engine() % count); }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    std::string_view of(const Words& words) { return words[below(words.size())]; }

  private:
    std::mt19937_64 m_engine;
};

class FeedWriter {
  public:
    explicit FeedWriter(const FeedShape& shape)
        : m_shape(shape) {}

    std::string write() {
        m_feed.reserve(static_cast<std::size_t>(m_shape.channels) * static_cast<std::size_t>(m_shape.days) *
                           41'000 +
                       100'000);
        m_feed += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n"
                  "<tv generator-info-name=\"generated\">\n";
        for (int channel = 0; channel < m_shape.channels; ++channel) {
            writeChannel(channel);
        }
        for (int channel = 0; channel < m_shape.channels; ++channel) {
            writeSchedule(channel);
        }
        m_feed += "</tv>\n";
        return std::move(m_feed);
    }

  private:
    void writeChannel(int channel) {
        const std::string id = generatedChannelId(channel).toStdString();
        const std::string number = std::to_string(channel + 1);
        m_feed += "  <channel id=\"" + id + "\">\n    <display-name>Program " + number +
                  "</display-name>\n    <icon src=\"https://images.example.net/logo/" + number +
                  ".png\" />\n  </channel>\n";
    }

    void writeSchedule(int channel) {
        const Language& language = languages()[static_cast<std::size_t>(channel) % languages().size()];
        Choice choice(static_cast<std::uint64_t>(channel) + 1);
        const Moment end = m_shape.start + std::chrono::days{m_shape.days};
        for (Moment at = m_shape.start; at < end;) {
            static constexpr std::array<int, 8> kMinutes{15, 20, 25, 30, 35, 45, 50, 65};
            const Moment until = at + std::chrono::minutes{kMinutes[choice.below(kMinutes.size())]};
            writeProgramme(channel, language, choice, at, until);
            at = until;
        }
    }

    void writeProgramme(int channel, const Language& language, Choice& choice, Moment start, Moment stop) {
        m_feed += "  <programme start=\"";
        date(start);
        m_feed += "\" stop=\"";
        date(stop);
        m_feed += "\" channel=\"" + generatedChannelId(channel).toStdString() + "\">\n";
        const std::size_t titleNumber = choice.below(language.titles.size());
        const std::string title(language.titles[titleNumber]);
        const std::string episode = std::to_string(choice.below(40) + 1);
        element("title", language.code,
                choice.oneIn(4) ? title + std::string(language.episode) + episode : title);
        if (!choice.oneIn(3)) {
            std::string subtitle = clause(language, choice);
            if (choice.oneIn(8)) {
                subtitle += ' ';
                subtitle += language.bracket;
            }
            element("sub-title", language.code, subtitle);
        }
        const bool hasCredits = !choice.oneIn(3);
        element("desc", language.code, description(language, choice, hasCredits));
        if (hasCredits && language.cast.empty()) {
            m_feed += "    <credits>\n";
            element("director", {}, name(language, choice), "      ");
            for (std::size_t i = choice.below(4); i-- > 0;) {
                element("actor", {}, name(language, choice), "      ");
            }
            m_feed += "    </credits>\n";
        }
        m_feed += "    <date>" + std::to_string(1960 + choice.below(80)) + "</date>\n";
        const std::size_t kind = choice.below(language.categories.size());
        element("category", language.code, language.categories[kind]);
        element("category", "en", languages().back().categories[kind]);
        if (!choice.oneIn(3)) {
            // Some channels share the pictures of a series.
            m_feed += "    <icon src=\"https://images.example.net/" +
                      std::to_string(channel % kPictureArchives) + '/' + std::to_string(titleNumber) + '-' +
                      episode + ".jpg\" width=\"480\" height=\"270\" />\n";
        }
        if (choice.oneIn(3)) {
            m_feed += "    <episode-num system=\"onscreen\">S01 E" + episode + "</episode-num>\n";
        }
        m_feed += "    <video>\n      <aspect>16:9</aspect>\n    </video>\n    <rating system=\"age\">\n     "
                  " <value>12</value>\n"
                  "    </rating>\n";
        if (choice.oneIn(6)) {
            m_feed += "    <previously-shown />\n";
        }
        m_feed += "  </programme>\n";
    }

    void element(std::string_view name, std::string_view language, std::string_view text,
                 std::string_view indent = "    ") {
        m_feed.append(indent).append("<").append(name);
        if (!language.empty()) {
            m_feed.append(" lang=\"").append(language).append("\"");
        }
        m_feed.append(">").append(text).append("</").append(name).append(">\n");
    }

    void date(Moment moment) {
        const auto day = std::chrono::floor<std::chrono::days>(moment);
        const std::chrono::year_month_day ymd{day};
        const std::chrono::hh_mm_ss time{std::chrono::floor<std::chrono::seconds>(moment - day)};
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%04d%02u%02u%02d%02d%02d +0000",
                      static_cast<int>(ymd.year()), static_cast<unsigned>(ymd.month()),
                      static_cast<unsigned>(ymd.day()), static_cast<int>(time.hours().count()),
                      static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
        m_feed += text.data();
    }

    static std::string clause(const Language& language, Choice& choice) {
        std::string text(choice.of(language.openings));
        text.append(" ").append(choice.of(language.nouns)).append(" ").append(choice.of(language.verbs));
        text.append(" ").append(choice.of(language.nouns));
        return text;
    }

    static std::string name(const Language& language, Choice& choice) {
        std::string text(choice.of(language.firstNames));
        return text.append(" ").append(choice.of(language.lastNames));
    }

    static std::string description(const Language& language, Choice& choice, bool hasCredits) {
        static constexpr std::array<std::string_view, 6> kEnds{". ",        ". ",      "! ",
                                                               "&#x2026; ", " &amp; ", ".\n"};
        std::string text;
        for (std::size_t sentences = 3 + choice.below(4); sentences-- > 0;) {
            text += clause(language, choice);
            text.append(" ").append(choice.of(language.joints)).append(" ");
            text += clause(language, choice);
            text += kEnds[choice.below(kEnds.size())];
        }
        text += choice.of(language.nouns);
        text += '.';
        if (hasCredits && !language.cast.empty()) {
            text += ' ';
            text += language.cast;
            text += name(language, choice) + ", " + name(language, choice) + '\n';
            text += language.director;
            text += name(language, choice);
        }
        return text;
    }

    const FeedShape& m_shape;
    std::string m_feed;
};

} // namespace

QByteArray generatedFeed(const FeedShape& shape) {
    return QByteArray::fromStdString(FeedWriter(shape).write());
}

QString generatedChannelId(int number) {
    const Language& language = languages()[static_cast<std::size_t>(number) % languages().size()];
    return QStringLiteral("channel%1.%2").arg(number + 1).arg(QLatin1StringView(language.code));
}

} // namespace guide::bench

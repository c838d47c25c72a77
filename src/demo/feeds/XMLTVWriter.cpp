#include "demo/feeds/XMLTVWriter.h"

#include "demo/feeds/TopicWords.h"
#include "demo/pages/Pictures.h"

#include <QDateTime>
#include <QTimeZone>

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString escaped(QString text, QChar quote = u'"') {
    text.replace(u'&', "&amp;"_L1).replace(u'<', "&lt;"_L1).replace(u'>', "&gt;"_L1);
    return text.replace(quote, quote == u'"' ? "&quot;"_L1 : "&apos;"_L1);
}

/// "12. díl" in the programme's language.
QString episodeTail(const Programme& programme) {
    const QString number = QString::number(programme.episode);
    if (programme.language == "cs"_L1) {
        return number + u". díl"_s;
    }
    if (programme.language == "sk"_L1) {
        return number + u". časť"_s;
    }
    if (programme.language == "fr"_L1) {
        return u"épisode "_s + number;
    }
    if (programme.language == "tr"_L1) {
        return number + u". bölüm"_s;
    }
    return programme.language == "ru"_L1 ? number + u"-я серия"_s : u"episode "_s + number;
}

/// The same for a title every time, and evenly spread.
unsigned numberOf(const QString& title) {
    unsigned number = 7;
    for (const QChar c : title) {
        number = number * 31 + c.unicode();
    }
    return number;
}

bool isFilm(const Programme& programme) {
    return programme.year > 0 && programme.episode == 0;
}

/// Of a film of another country, in English; empty for any other.
QString originalTitle(const Programme& programme) {
    static constexpr std::array kFirst{"Silent",   "Crooked",  "Second", "Paper",
                                       "Northern", "Borrowed", "Last"};
    static constexpr std::array kSecond{"Harbour", "Orchard", "Witness", "Letter", "Summer", "Lighthouse"};
    const unsigned number = numberOf(programme.title);
    return isFilm(programme) && programme.language != "en"_L1 && number % 2 == 0
               ? u"The %1 %2"_s.arg(QLatin1StringView(kFirst[number / 2 % kFirst.size()]),
                                    QLatin1StringView(kSecond[number / 16 % kSecond.size()]))
               : QString();
}

/// The age from which a film may be seen; empty for any.
QString ageRating(const Programme& programme) {
    switch (programme.topic) {
    case Topic::Horror:
        return u"18"_s;
    case Topic::Thriller:
        return u"15"_s;
    case Topic::Crime:
    case Topic::Western:
        return u"12"_s;
    default:
        return {};
    }
}

/// Windows-1251, with character references for all other characters.
QByteArray cyrillicBytes(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if (unit < 0x80) {
            bytes += char(unit);
        } else if (unit >= 0x410 && unit <= 0x44f) {
            bytes += char(0xc0 + (unit - 0x410));
        } else if (unit == 0x401 || unit == 0x451) {
            bytes += char(unit == 0x401 ? 0xa8 : 0xb8);
        } else {
            bytes += "&#" + QByteArray::number(unit) + ';';
        }
    }
    return bytes;
}

class Document {
  public:
    explicit Document(const FeedStyle& style)
        : m_style(style)
        , m_quote(style.singleQuotes ? u'\'' : u'"') {}

    QByteArray bytes(const std::vector<WrittenChannel>& channels);

  private:
    void programme(const Programme& programme, const WrittenChannel& channel);
    void credits(const Programme& programme);
    /// What typed facts are read from, where the title does not carry it.
    void ratings(const Programme& programme);
    QString title(const Programme& programme) const;
    QString subtitle(const Programme& programme) const;
    QString description(const Programme& programme) const;
    QString time(Moment moment) const;

    QString attribute(QLatin1StringView name, const QString& value) const {
        return u' ' + name + u'=' + m_quote + escaped(value, m_quote) + m_quote;
    }
    void element(QLatin1StringView name, const QString& attributes, const QString& text) {
        if (!text.isEmpty()) {
            m_text += u"    <"_s + name + attributes + u'>' + text + u"</"_s + name + u">\n"_s;
        }
    }

    const FeedStyle m_style;
    const QChar m_quote;
    QTimeZone m_zone = QTimeZone::utc();
    QString m_text;
};

QByteArray Document::bytes(const std::vector<WrittenChannel>& channels) {
    m_text = m_style.cyrillicBytes ? u"<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n"_s
                                   : u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"_s;
    m_text += u"<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n<tv"_s + attribute("generator-info-name"_L1, u"demo"_s) +
              u">\n"_s;
    for (const WrittenChannel& channel : channels) {
        m_text += u"  <channel"_s + attribute("id"_L1, channel.id) + u">\n"_s;
        element("display-name"_L1, {}, escaped(channel.displayName));
        m_text += u"  </channel>\n"_s;
    }
    for (const WrittenChannel& channel : channels) {
        m_zone = m_style.utc ? QTimeZone::utc() : QTimeZone(channel.zone);
        for (const Programme& each : channel.programmes) {
            programme(each, channel);
        }
    }
    m_text += u"</tv>\n"_s;
    return m_style.cyrillicBytes ? cyrillicBytes(m_text) : m_text.toUtf8();
}

void Document::programme(const Programme& programme, const WrittenChannel& channel) {
    m_text += u"  <programme"_s + attribute("start"_L1, time(programme.start)) +
              attribute("stop"_L1, time(programme.stop)) + attribute("channel"_L1, channel.id) + u">\n"_s;
    const QString language = attribute("lang"_L1, programme.language);
    element("title"_L1, language, escaped(title(programme)));
    if (m_style.form != FeedStyle::Form::Bracketed) {
        element("title"_L1, attribute("lang"_L1, u"en"_s), originalTitle(programme));
    }
    element("sub-title"_L1, language, escaped(subtitle(programme)));
    const QString description = this->description(programme);
    element("desc"_L1, language,
            m_style.cdata && !description.isEmpty() ? u"<![CDATA["_s + description + u"]]>"_s
                                                    : escaped(description));
    if (m_style.form != FeedStyle::Form::Packed) {
        credits(programme);
    }
    element("date"_L1, {}, programme.year > 0 ? QString::number(programme.year) : QString());
    const TopicWords words = topicWords(programme.topic, programme.language);
    if (m_style.form == FeedStyle::Form::Packed) {
        element("category"_L1, language, escaped(words.category));
    } else if (m_style.form == FeedStyle::Form::Attributes) {
        element("category"_L1, attribute("desc"_L1, words.attribute) + attribute("lang"_L1, u"en"_s),
                escaped(words.attributeText));
    }
    if (!m_style.pictureServer.isEmpty() && programme.topic != Topic::None &&
        programme.topic != Topic::News) {
        const QString path = QString::fromLatin1(showPicturePath(programme.title));
        m_text +=
            u"    <icon"_s + attribute("src"_L1, u"http://"_s + m_style.pictureServer + path) + u"/>\n"_s;
    }
    element("country"_L1, {}, escaped(programme.country));
    if (programme.episode > 0 && m_style.form != FeedStyle::Form::Bracketed) {
        element("episode-num"_L1, attribute("system"_L1, u"xmltv_ns"_s),
                (programme.season > 0 ? QString::number(programme.season - 1) : QString()) + u'.' +
                    QString::number(programme.episode - 1) + u'.');
    }
    if (programme.repeat && m_style.form != FeedStyle::Form::Bracketed) {
        m_text += u"    <previously-shown/>\n"_s;
    }
    if (m_style.form != FeedStyle::Form::Bracketed) {
        ratings(programme);
    }
    m_text += u"  </programme>\n"_s;
}

void Document::ratings(const Programme& programme) {
    if (!programme.repeat && programme.season > 0) {
        m_text += u"    <new/>\n"_s;
    }
    if (const QString age = ageRating(programme); !age.isEmpty()) {
        m_text += u"    <rating><value>"_s + age + u"</value></rating>\n"_s;
    }
    if (isFilm(programme)) {
        m_text +=
            u"    <star-rating><value>%1/10</value></star-rating>\n"_s.arg(4 + numberOf(programme.title) % 6);
    }
}

void Document::credits(const Programme& programme) {
    if (programme.director.isEmpty() && programme.actors.isEmpty()) {
        return;
    }
    m_text += u"    <credits>\n"_s;
    element("director"_L1, {}, escaped(programme.director));
    for (const QString& actor : programme.actors) {
        element("actor"_L1, {}, escaped(actor));
    }
    m_text += u"    </credits>\n"_s;
}

QString Document::title(const Programme& programme) const {
    QString title = programme.title;
    if (m_style.form == FeedStyle::Form::Attributes) {
        return title;
    }
    if (programme.episode > 0) {
        title += u", "_s + episodeTail(programme);
    } else if (programme.year > 0 && m_style.form == FeedStyle::Form::Bracketed) {
        title += u" (%1 %2)"_s.arg(programme.country).arg(programme.year);
    }
    return programme.repeat && m_style.form == FeedStyle::Form::Bracketed ? title + u" (R)"_s : title;
}

QString Document::subtitle(const Programme& programme) const {
    if (m_style.form != FeedStyle::Form::Bracketed) {
        return programme.subtitle;
    }
    const QString bracket = topicWords(programme.topic, programme.language).bracket;
    return bracket.isEmpty() ? programme.subtitle : (u'[' + bracket + u"] "_s + programme.subtitle).trimmed();
}

QString Document::description(const Programme& programme) const {
    QString text = programme.description;
    if (m_style.form == FeedStyle::Form::Packed && !programme.actors.isEmpty()) {
        // The reader keeps the text before the credits as it is, so no separator is added.
        text += u"Uloge: "_s + programme.actors.join(u", "_s) + u"\nRedatelj: "_s + programme.director;
    }
    return text;
}

QString Document::time(Moment moment) const {
    const qint64 milliseconds = moment.time_since_epoch().count();
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(milliseconds, m_zone);
    const int minutes = m_zone.offsetFromUtc(local) / 60;
    return local.toString(m_style.tightZone ? u"yyyyMMddHHmmss"_s : u"yyyyMMddHHmmss "_s) +
           u"%1%2%3"_s.arg(QChar(minutes < 0 ? u'-' : u'+'))
               .arg(std::abs(minutes) / 60, 2, 10, QChar(u'0'))
               .arg(std::abs(minutes) % 60, 2, 10, QChar(u'0'));
}

} // namespace

QByteArray xmltvDocument(const std::vector<WrittenChannel>& channels, const FeedStyle& style) {
    return Document(style).bytes(channels);
}

} // namespace guide

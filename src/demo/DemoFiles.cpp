#include "demo/DemoFiles.h"

#include "demo/DemoChannel.h"
#include "demo/DemoSites.h"
#include "demo/feeds/DemoFeed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

void writePair(QXmlStreamWriter& xml, const QString& key, const QString& value) {
    xml.writeTextElement(u"key"_s, key);
    xml.writeTextElement(u"string"_s, value);
}

void writeChannel(QXmlStreamWriter& xml, const DemoChannel& channel, const QString& base) {
    xml.writeStartElement(u"dict"_s);
    writePair(xml, u"Location"_s, channel.location);
    writePair(xml, u"Title"_s, channel.title);
    writePair(xml, u"Language"_s, channel.language);
    writePair(xml, u"Icon"_s, channel.region + u'/' + channel.key);
    if (channel.hasStream) {
        writePair(xml, u"Stream"_s, base + kStreams + channel.key + u".ogv"_s);
    }
    for (qsizetype i = 0; i < channel.sources.size(); ++i) {
        writePair(xml, u"Location%1"_s.arg(i + 1), sourceOnServer(channel.sources[i], base));
    }
    xml.writeEndElement();
}

} // namespace

QByteArray demoCatalogue(const QString& base) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"plist"_s);
    xml.writeAttribute(u"version"_s, u"1.0"_s);
    xml.writeStartElement(u"dict"_s);
    xml.writeTextElement(u"key"_s, u"Channels"_s);
    xml.writeStartElement(u"array"_s);
    for (const DemoChannel& channel : demoChannels()) {
        writeChannel(xml, channel, base);
    }
    xml.writeEndDocument();
    return bytes;
}

QByteArray demoHosts(const QString& base) {
    QJsonObject hosts{{u"RytecMirrorA"_s, base},
                      {u"RytecMirrorB"_s, base + u"/epg_data"_s},
                      {u"NFeedHost"_s, base},
                      {u"SFeedHost"_s, base},
                      {u"TVPCFeedHost"_s, base},
                      {u"BNetHost"_s, base},
                      {u"BNetDomain"_s, QString::fromLatin1(kDayFileDomain)},
                      {u"TVProfilHost"_s, base}};
    for (const auto& [key, host] : DemoSites::hosts(base)) {
        hosts.insert(key, host);
    }
    return QJsonDocument(hosts).toJson();
}

QByteArray demoPlaylist(const QString& base) {
    struct Entry {
        QStringView key;
        QStringView id;
        QStringView name;
    };
    static constexpr std::array kEntries{
        Entry{u"vyhled", u"vyhled.demo", u"Výhled HD"},
        Entry{u"platno", u"", u"CZ: Plátno"},
        Entry{u"pametnik", u"", u"PAMETNIK FHD"},
        Entry{u"stopa", u"", u"Stopa TV"},
        Entry{u"zahradka", u"", u"Televize Zahrádka"},
        Entry{u"minuta", u"", u"Minuta"},
        Entry{u"ozvena", u"", u"Ozvěna +1"},
    };
    QString list = u"#EXTM3U url-tvg=\"%1%2\"\n"_s.arg(base, kDemoPlaylistFeed);
    for (const Entry& entry : kEntries) {
        list += u"#EXTINF:-1 tvg-id=\"%1\" group-title=\"Demo\",%2\n%3%4%5.ogv\n"_s.arg(
            entry.id, entry.name, base, kStreams, entry.key);
    }
    return list.toUtf8();
}

QByteArray demoSelectionFile() {
    return QJsonDocument(QJsonArray::fromStringList(demoSelection())).toJson();
}

} // namespace guide

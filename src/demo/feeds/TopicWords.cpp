#include "demo/feeds/TopicWords.h"

#include <algorithm>
#include <array>

namespace guide {

namespace {

struct Row {
    Topic topic;
    QStringView czech;
    QStringView slovak;
    QStringView french;
    QStringView category;
    QStringView attribute;
    QStringView attributeText;
};

constexpr std::array kRows = {
    Row{Topic::Comedy, u"komedie", u"Komédia", u"Comédie", u"film, komedie", u"Comedy", u"comedy film"},
    Row{Topic::Drama, u"drama", u"dramatický film", u"drame", u"film, drama", u"Drama", u"drama film"},
    Row{Topic::Crime, u"krimi", u"krimi", u"policier", u"film, krimi", u"Movie", u"crime film"},
    Row{Topic::Thriller, u"thriller", u"thriller", u"thriller", u"film, thriller", u"Movie",
        u"thriller film"},
    Row{Topic::ScienceFiction, u"sci-fi", u"sci-fi", u"science-fiction", u"SF film", u"Science fiction",
        u"science fiction"},
    Row{Topic::Fantasy, u"fantasy", u"fantasy", u"film fantastique", u"film, fantasy", u"Movie",
        u"fantasy film"},
    Row{Topic::Horror, u"horor", u"horor", u"film d'horreur", u"film, horor", u"Movie", u"horror film"},
    Row{Topic::Western, u"western", u"western", u"western", u"film, western", u"Movie", u"western film"},
    Row{Topic::Adventure, u"dobrodružný", u"dobrodružný", u"film d'aventures", u"dobrodružný film",
        u"Adventure", u"adventure film"},
    Row{Topic::Romance, u"romantický film", u"romantický film", u"film sentimental", u"romantický film",
        u"Romance", u"romantic film"},
    Row{Topic::Series, u"Seriál", u"Seriál", u"série", u"seriál", u"Series", u"series"},
    Row{Topic::CrimeSeries, u"Seriál, krimi", u"Seriál, krimi", u"série policière", u"kriminální seriál",
        u"Series", u"crime series"},
    Row{Topic::ComedySeries, u"Sitcom", u"Sitcom", u"Sitcom", u"sitcom", u"Series", u"sitcom"},
    Row{Topic::Documentary, u"dokument", u"dokument", u"Documentaire", u"dokument", u"Documentary",
        u"documentary"},
    Row{Topic::Children, u"pro děti", u"Kids, pre deti", u"Kids, jeunesse", u"pro děti", u"Children",
        u"children"},
    Row{Topic::News, u"informace", u"informácie", u"Actualité", u"informativní pořad", u"News", u"news"},
    Row{Topic::Weather, u"informace", u"informácie", u"Météo", u"informativní pořad", u"News", u"weather"},
    Row{Topic::Entertainment, u"Zábava", u"Zábava", u"Divertissement", u"zábavná show", u"Entertainment",
        u"show"},
    Row{Topic::Quiz, u"Zábava, soutěž", u"Zábava, súťaž", u"Divertissement, quiz", u"soutěžní show", u"Show",
        u"quiz"},
    Row{Topic::Magazine, u"magazín", u"magazín", u"Magazine", u"lifestyle", u"Magazine", u"magazine"},
    Row{Topic::Music, u"hudební", u"Hudba", u"concert", u"hudba", u"Music", u"music"},
    Row{Topic::Sports, u"sport", u"šport", u"sport", u"sport", u"Sports", u"sports"},
};

} // namespace

TopicWords topicWords(Topic topic, const QString& language) {
    const auto* const row =
        std::find_if(kRows.begin(), kRows.end(), [topic](const Row& each) { return each.topic == topic; });
    if (row == kRows.end()) {
        return {};
    }
    const QStringView bracket = language == u"sk"   ? row->slovak
                                : language == u"fr" ? row->french
                                                    : row->czech;
    return {bracket.toString(), row->category.toString(), row->attribute.toString(),
            row->attributeText.toString()};
}

} // namespace guide

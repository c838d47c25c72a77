#include "text/categories/genres/GenreRow.h"

#include <array>

namespace guide::genres {

namespace {

// clang-format off
constexpr std::array kRows{
    Row{kForChildren, kChannel,
        u"boing|cartoonito|cartoon network|cartoon|boomerang|nick jr|nick junior|nickjr|nickelodeon|"
        u"nick|nicktoons|nick toons|teennick|teen nick|disney channel|disney junior|disney jr|"
        u"disney xd|duck tv|ducktv|minimax|jimjam|jim jam|baby tv|babytv|babyfirst|baby first|kika|"
        u"super rtl|toggo|rai yoyo|yoyo|rai gulp|gulp|dea junior|deakids|dea kids|kölyök klub|tv2 kids|"
        u"tv rik|ťuki|gulli|tiji|piwi|canal j|čt déčko|čt :d|déčko|ct :d|jojko|cbeebies|cbbc|citv|"
        u"tiny pop|minimini|mini mini|teletoon|tvp abc|kids|kidz|otroški|dětský|dječji|bambini|детский|"
        u"детски|карусель|мульт|мульти|tlum|clan tv|clan|trt çocuk|çocuk|minika|zarok|smurf|junior|"
        u"kinder|παιδικό|junior channel|da vinci kids|da vinci learning kids|fix&foxi|fix foxi|ric|"
        u"okoo|telequiz kids|pikaboo|bubble hits kids|pop kids|dexter|e-junior|ejunior|animax kids|"
        u"kidsco|zoomoo|fixi|mickey|детская|малятко|пиксель|плюсплюс|ketnet|zappelin|svt barn|"
        u"nrk super|ramasjang"},
    Row{kForChildren, kChannel, u"frisbee|k2", u"it"},
    Row{kForChildren, kChannel, u"smile", u"el"},
    Row{kForChildren, kChannelStart, u"super", u"it"},
    Row{kMusic, kChannel,
        u"mtv hits|mtv 80s|mtv 90s|mtv 00s|club mtv|mtv live|mtv music|mtv dance|mtv rocks|mtv base|"
        u"vh1|vh1 classic|viva|deluxe music|jukebox|stingray|iconcerts|mezzo|mezzo live|classica|"
        u"sláger tv|šláger|šlágr|muzsika tv|zenebutik tv|óčko|retro music|mad tv|music|musik|muzika|"
        u"musica|musique|hudba|muzyka|музыка|музика|hit tv|dm sat|radio italia tv|trace urban|tunebox|"
        u"jazz tv|jazz|cmc|4fun|eska tv|polo tv|vox music|nrj hits|clubbing tv|муз-тв|муз тв|ру тв|"
        u"ru.tv|муз|muz tv|kral|kral pop|number one|dreamtürk|planeta tv|планета|фолклор|folklorika|"
        u"r101tv|deejay tv|radiofreccia|virgin radio tv|kiss tv|magic tv|etno|zu tv|utv|taraf|"
        u"balkanika|hit music|melodie tv|gotv|djazz|nashville tv|the box|kerrang|magic|now 80s|lala tv|"
        u"bridge tv|жара|m2o|mcm|trace"},
    Row{kSports, kChannel,
        u"eurosport|eurosportitaly|eurosport2|sport|sports|sport1|sport2|sport 1|sport 2|sport 3|dazn|"
        u"arena sport|arena4|match4|supertennis|tennis channel|golf channel|golf tv|rai sport|"
        u"sky sport|canal+ sport|nova sport|bein sports|bein sport|bein|fox sports|setanta|digi sport|"
        u"espn|extreme sports|fightbox|fight network|ufc|motogp|nba tv|nba|nfl network|bike channel|"
        u"milan tv|inter tv|juventus tv|roma tv|padel|padel-time|solo calcio|solo-calcio|calcio|šport|"
        u"ertsports|ertsportshd|match tv|матч|матч!|спорт|спорт 1|виасат спорт|viaplay sport|"
        u"ziggo sport|telenet sport|play sports|sportv|sportitalia|premier sport|premier sports|"
        u"sportklub|sport klub|sk1|diema sport|диема спорт|nautical channel|equidia|l'equipe|"
        u"la chaine l'equipe|rmc sport|infosport|trt spor|spor|a spor|tivibu spor|s sport|ssport|"
        u"laola1|orf sport|ziggo|tsn|tv3 sport|eleven|horse tv|esport|edge sport|edgesport|"
        u"sportdigital|strike tv|nova sport 1|nova sport 2|arena premium|arena fight|sport mediaset|"
        u"mma tv|poker tv|automoto sport|cosmote sport|novasports|mutv|lfctv|chelsea tv|real madrid tv|"
        u"barça tv|top calcio 24|ginx sport|redbull tv"},
    Row{0, kChannel,
        u"fox|auto motor sport|auto motor und sport|ginx esports|esports tv|welt der wunder|news sport|"
        u"radio sport"},
    Row{kEntertainment, kChannel,
        u"auto motor sport|auto motor und sport|ginx esports tv|ginx esports|gametoon|auto moto tv|"
        u"automoto|motorvision|motorvision+|motowizja|esport-24|eclutch-live"},
    Row{kDocumentaries, kChannel,
        u"dmax|motor trend|discovery|discovery channel|national geographic|nat geo|natgeo|nat geo wild|"
        u"ngc|ngc wild|animal planet|history|history channel|history 2|viasat history|viasat nature|"
        u"viasat explore|viasat explorer|spektrum|love nature|bbc earth|docubox|da vinci|ozone tv|"
        u"travel channel|travel xp|travelxp|travel tv|marcopolo|curiosity|crime investigation|"
        u"crime+investigation|crime + investigation|crime and inv|investigation discovery|ci crime|"
        u"id xtra|cs history|cs mystery|viasat true crime|planete|planète|planète+|ushuaia|"
        u"science channel|discovery science|smithsonian|n24 doku|welt der wunder|spiegel geschichte|"
        u"geo television|zdfinfo|rai storia|rai scuola|focus|sky nature|sky documentaries|"
        u"documentaries|documentary|dokument|doku|docu|sky arte|curiosity channel|rmc découverte|"
        u"national geographic wild|history hit|pbs america|blaze|prima zoom|zoom|nova gold dokument|"
        u"tvp dokument|tvp historia|tvp nauka|bbc knowledge|animaux|histoire tv|toute l'histoire|"
        u"viasat nat|русский экстрим|наука|моя планета|живая планета|охота и рыбалка документ|история|"
        u"trt belgesel|belgesel|da vinci learning|dw documentary|odisea|odisseia|canal de historia|"
        u"discovery turbo|discovery shed|mt documentary|rtv natura|national geographic people|nature|"
        u"nat geo people|discoveryshed|discovery id|docu tv|sky crime|cbs reality true|arte doku|"
        u"curiosity stream|český dokument|dtx|english club"},
    Row{kNews, kChannelStart, u"24"},
    Row{kDocumentaries, kChannelStart, u"id", u"hu sk cs pl ro hr sr sl bg it"},
    Row{kNews, kChannel,
        u"euronews|cnn|bbc news|bbc world news|bbc world|sky news|al jazeera|aljazeera|n-tv|ntv 24|"
        u"tagesschau24|cnews|bfm|bfmtv|bfm business|lci|france 24|france24|franceinfo|tg24|sky tg24|"
        u"tgcom|tgcom 24|rai news|rai news 24|rainews|ta3|joj 24|čt24|ct24|cnn prima news|hír tv|n1|"
        u"bloomberg|cnbc|fox news|fox business|24 horas|habertürk|haber|россия 24|tvn24|tvp info|"
        u"polsat news|news|news 24|berita satu|class cnbc|nos|realitatea plus|digi 24|digi24|"
        u"antena 3 cnn|românia tv|b1 tv|bulgaria on air news|bloomberg tv|tv9 news|rtvs 24|i24news|i24|"
        u"newsmax|msnbc|nova24tv|россия24|рбк|24 канал|еспресо|настоящее время|freedom|факти|cnn türk|"
        u"ntv haber|tele1 haber|tv100|a haber|trt haber|24 kitchen news|parlamentarni kanal|phoenix|"
        u"lcp|public sénat|bbc parliament|trm h24"},
    Row{kEntertainment, kChannel,
        u"food network|tv paprika|paprika tv|gambero rosso|hgtv|home garden|home & garden|tlc|"
        u"real time|realtime|fine living|fashion tv|fashiontv|tv2 séf|tv2 sef|spektrum home|"
        u"fishing & hunting|fishing and hunting|fishing and hunting channel|caccia|pesca|fit hd|fittv|"
        u"kitchen tv|24kitchen|24 kitchen|kuchnia|cucina|alma tv|food|cuisine|gusto tv|home tv|"
        u"travel & cooking|food tv|discovery home|lifestyle|mediaset extra|охота и рыбалка|кухня|"
        u"кухня тв|еда|усадьба|домашний магазин|domo+|polsat cafe|tvn style|e! entertainment|"
        u"e entertainment|comedy club|bbc lifestyle|ginx|classtvmoda|rtl living|lov a rybolov|"
        u"trace hobby|caccia e pesca|donna tv|mtv|mtv hungary|mtv italia"},
    Row{kMovies, kChannel,
        u"sky cinema|canal+ action|cinema|cine|filmbox|film+|film4|film 4|film café|film mánia|mozi|"
        u"mozi+|mozi klub|moziverzum|magyar mozi|hbo|hbo2|hbo3|hbo 2|hbo 3|cinemax|cinestar|movies|"
        u"movie|kino|kino barrandov|kinowelt|rai movie|cine 34|cine34|viasat film|tv1000|tv 1000|"
        u"film europe|film|filmová|warner tv film|joj cinema|cs film|canal+ cinema|canal+ film|"
        u"premium film|sky cinema premieren|silverline|heimatkanal|romance tv film|paramount movies|"
        u"iris|la7 cinema|la 7 cinema|tcm|ciné+|cine+|ocs|sundance|great movies|film zone|kinopremiera|"
        u"кино|киносемья|кинохит|кинопремьера|мосфильм|дом кино|родное кино|диема|диема family film|"
        u"tvp film|stopklatka|stopklatka tv|kino polska|kino tv|cinemania|klasik tv|doma film|"
        u"pickbox film|amc|fox movies|celestial movies|thrill|bioskop|cinestar action|film box|sinema|"
        u"moviesmart|dizi film|novacinema|cosmote cinema|cinema tv|axn white film"},
    Row{kSeries, kChannel,
        u"sorozat|sorozat+|sorozat klub|epic drama|sky serie|sky series|sky investigation|sky atlantic|"
        u"warner tv serie|serien|series|serie|séries|seriale|axn black|axn white|13th street|fox crime|"
        u"universal tv|syfy|topcrime|top crime|rtl crime|markíza krimi|izaura tv|telenovela|novela|"
        u"novelas|romance tv|pasiones|13eme rue|13ème rue|série club|serie club|bbc first|star crime|"
        u"серіал|сериал|диема family|dizi|tele novela|wp serial|cbs drama|canal+ séries|ocs géants|"
        u"нтв сериал|русский детектив|русский бестселлер|rtl passion|sat.1 emotions|warner tv comedy|"
        u"comedy central|tv2 comedy|jocky tv"},
    // Episodes there hardly ever are of stories.
    Row{kPresented, kChannel,
        u"rai 5|rai cinque|la7d|tv7|rete 4 show|giallo|nove|cielo|tv8|spíler1|spíler2|spíler|tv2 klub|"
        u"rtl otthon|life tv|rtl living|quest|quest red|really|5star|rmc story|6ter|ozone tv|funbox|d1|"
        u"wedo|la5|la 5|prima show|markíza klasik show|vox|voxup|rtl zwei|rtlzwei|kabel eins|e4 extra|"
        u"channel 5 reality|w|tlc|travel|ert3|vouli|m3|m5|duna world|tv noe|noe|tvp polonia"},
    Row{kAdult, kChannel,
        u"comedy central|adult swim|fox|prosieben|pro7|prosieben maxx|tv2 comedy|mtv|e4|syfy|dmax|itv2|"
        u"viasat 6|viasat6|prima cool|italia 1|italia uno|warner tv comedy|w9|tfx|one|puls 4|viasat 3|"
        u"cool|joj plus|2x2|fx|animax|aniplus|crunchyroll|adn|mangas|game one|j-one"},
    Row{kNothing, kChannel,
        u"qvc|hse|hse24|1-2-3.tv|shop|shop tv|shopping|teleshopping|mediashop|juwelo|sonnenklar|"
        u"bibel tv|ewtn|telepace|tele padre pio|magio promo|promo|tci italia|tv noe test"},
};
// clang-format on

} // namespace

std::span<const Row> channelRows() {
    return kRows;
}

} // namespace guide::genres

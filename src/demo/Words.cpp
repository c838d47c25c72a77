#include "demo/Words.h"

namespace guide {

namespace {

Grammar grammarFrom(std::initializer_list<const char16_t*> pieces) {
    QString source;
    for (const char16_t* piece : pieces) {
        source += QStringView(piece);
    }
    return Grammar(source);
}

} // namespace

const Grammar& grammarOf(QStringView language) {
    using namespace words;
    static const Grammar czech =
        grammarFrom({kCzechPeople, kCzechFilms, kCzechSeries, kCzechWorld, kCzechCompany});
    static const Grammar slovak = grammarFrom({kSlovakFilms, kSlovakShows});
    static const Grammar english = grammarFrom({kEnglish});
    static const Grammar french = grammarFrom({kFrench});
    static const Grammar turkish = grammarFrom({kTurkish});
    static const Grammar russian = grammarFrom({kRussian});
    if (language == u"cs") {
        return czech;
    }
    if (language == u"sk") {
        return slovak;
    }
    if (language == u"fr") {
        return french;
    }
    if (language == u"tr") {
        return turkish;
    }
    return language == u"ru" ? russian : english;
}

} // namespace guide

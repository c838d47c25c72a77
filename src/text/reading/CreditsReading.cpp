#include "text/reading/CreditsReading.h"

#include "text/cleaning/TextTidying.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

enum class Credit { Director, Cast, Other };

/// Labels of credits, and of what may stand between them.
Credit creditOf(const QString& label, bool& isKnown) {
    static const QHash<QString, Credit> kLabels = [] {
        QHash<QString, Credit> labels;
        const auto add = [&labels](Credit credit, std::initializer_list<const char16_t*> words) {
            for (const char16_t* word : words) {
                labels.insert(QStringView(word).toString(), credit);
            }
        };
        add(Credit::Director, {u"Regie",
                               u"Regisseur",
                               u"Regisseurin",
                               u"Regia",
                               u"Regista",
                               u"Réalisateur",
                               u"Réalisatrice",
                               u"Réalisation",
                               u"Réal.",
                               u"Regizor",
                               u"Regizori",
                               u"Regizorul",
                               u"Reżyseria",
                               u"Reżyser",
                               u"Reż.",
                               u"Yönetmen",
                               u"Yönetmenler",
                               u"Σκηνοθεσία",
                               u"Σκηνοθέτης",
                               u"Σενάριο/Σκηνοθεσία",
                               u"Rendezte",
                               u"Rendező",
                               u"Rendezők",
                               u"Režie",
                               u"Režisér",
                               u"Réžia",
                               u"Režia",
                               u"Režija",
                               u"Redatelj",
                               u"Redateljica",
                               u"Reditelj",
                               u"Режија",
                               u"Редитељ",
                               u"Режисьор",
                               u"Режиссер",
                               u"Режисёр",
                               u"Director",
                               u"Directed by",
                               u"Dirección",
                               u"Režisors",
                               u"Scenarist i redatelj",
                               u"Scenarij i režija",
                               u"Regisor"});
        add(Credit::Cast, {u"Darsteller",
                           u"Besetzung",
                           u"Mit",
                           u"Schauspieler",
                           u"Cast",
                           u"Interpreti",
                           u"Attori",
                           u"Interpretato da",
                           u"Con",
                           u"Avec",
                           u"Acteurs",
                           u"Distribution",
                           u"Distribuția",
                           u"Distribuţia",
                           u"Distributia",
                           u"Actori",
                           u"Cu",
                           u"Obsada",
                           u"Występują",
                           u"Grają",
                           u"Oyuncular",
                           u"Oyuncu Kadrosu",
                           u"Παίζουν",
                           u"Πρωταγωνιστούν",
                           u"Ηθοποιοί",
                           u"Πρωταγωνιστές",
                           u"Főszereplők",
                           u"Főszereplő",
                           u"Szereplők",
                           u"Szereplő",
                           u"Hrají",
                           u"Účinkují",
                           u"V hlavních rolích",
                           u"V hlavní roli",
                           u"Hrajú",
                           u"Účinkujú",
                           u"V hlavných úlohách",
                           u"V hlavnej úlohe",
                           u"Uloge",
                           u"Glavne uloge",
                           u"Glume",
                           u"Igrajo",
                           u"Улоге",
                           u"Глуме",
                           u"В ролите",
                           u"Участват",
                           u"Улоги",
                           u"В ролях",
                           u"Reparto",
                           u"Intérpretes",
                           u"Starring",
                           u"Stars",
                           u"Lomās"});
        add(Credit::Other,
            {u"Drehbuch",   u"Musik",       u"Kamera",       u"Sceneggiatura", u"Musiche",
             u"Fotografia", u"Scénario",    u"Musique",      u"Scenariu",      u"Scenariul",
             u"Muzica",     u"Muzyka",      u"Scenariusz",   u"Zdjęcia",       u"Senaryo",
             u"Müzik",      u"Σενάριο",     u"Μουσική",      u"Παραγωγή",      u"Διάρκεια",
             u"Δημιουργός", u"Έτος",        u"Παρουσίαση",   u"Είδος",         u"Guest",
             u"Író",        u"Írta",        u"Zene",         u"Operatőr",      u"Forgatókönyvíró",
             u"Scénář",     u"Scenár",      u"Námět",        u"Námet",         u"Hudba",
             u"Scenarij",   u"Scenario",    u"Scenarist",    u"Glazba",        u"Muzika",
             u"Сценарио",   u"Сценарий",    u"Музика",       u"Оператор",      u"Producer",
             u"Writer",     u"Műsorvezető", u"Műsorvezetők", u"Uvádza",        u"Moderuje",
             u"Uvádí",      u"Žanr",        u"Godina",       u"Země",          u"Rok",
             u"Produkcija", u"Produkce",    u"Gyártó",       u"Country",       u"Year"});
        return labels;
    }();
    const auto known = kLabels.constFind(label);
    isKnown = known != kLabels.constEnd();
    return isKnown ? *known : Credit::Other;
}

struct CreditLabel {
    qsizetype start = 0;
    /// Behind the colon.
    qsizetype end = 0;
    Credit credit = Credit::Other;
};

/// The label that the colon ends: one to three words at the start of a line or behind a sentence, or right
/// behind a word, as some feeds write it; among credits anywhere.
std::optional<CreditLabel> labelAt(const QString& text, qsizetype colon, bool isAmongCredits) {
    constexpr qsizetype kLongestLabel = 24;
    qsizetype end = colon;
    if (end > 0 && text[end - 1].isSpace()) {
        --end;
    }
    const bool isFollowed =
        colon + 1 == text.size() || text[colon + 1].isSpace() || text[colon + 1].isUpper();
    if (!isFollowed) {
        return std::nullopt;
    }
    int words = 0;
    for (qsizetype start = end - 1; start >= 0 && end - start <= kLongestLabel; --start) {
        const QChar before = start == 0 ? QChar(u'\n') : text[start - 1];
        const bool begins = text[start].isUpper() && !before.isUpper();
        if (begins) {
            bool isKnown = false;
            const Credit credit = creditOf(text.sliced(start, end - start), isKnown);
            const QChar sign = before == u' ' && start > 1 ? text[start - 2] : before;
            const bool isApart = before == u'\n' || before.isLower() || (isAmongCredits && before == u' ') ||
                                 QStringView(u".!?…)]»\"”'’;,").contains(sign);
            if (isKnown && isApart) {
                return CreditLabel{start, colon + 1, credit};
            }
        }
        if (before.isSpace() && (before == u'\n' || ++words == 3)) {
            break;
        }
    }
    return std::nullopt;
}

} // namespace

QString withoutOthers(const QString& names) {
    static const QRegularExpression kOthers(
        u"(?:[,;]\\s*|\\s+|^)(?:u\\.\\s?a\\.?(?:\\s?m\\.?)?|e altri|ed altri|altri|et al\\.?|a další|a "
        u"ďalší|a "
        u"iní|a jiní|és mások|és még sokan mások|"
        u"i inni|și alții|şi alţii|si altii|κ\\.\\s?ά\\.?|κ\\.\\s?α\\.?|ve diğerleri|i drugi|i dr\\.|i "
        u"ostali|и др\\.?|и други|and others|"
        u"etc\\.?|itd\\.?|atd\\.?|y otros|in drugi|\\.\\.\\.|…)\\s*$"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString left = names;
    for (int i = 0; i < 3; ++i) {
        const qsizetype before = left.size();
        left.remove(kOthers);
        left = left.trimmed();
        while (left.endsWith(u',') || left.endsWith(u';') || left.endsWith(u'-')) {
            left.chop(1);
        }
        if (left.size() == before) {
            break;
        }
    }
    return left;
}

ReadCredits takeCredits(QString& text) {
    ReadCredits credits;
    if (!text.contains(u':')) {
        return credits;
    }
    std::vector<CreditLabel> labels;
    constexpr std::size_t kMostLabels = 20;
    for (qsizetype colon = text.indexOf(u':'); colon > 0 && labels.size() < kMostLabels;
         colon = text.indexOf(u':', colon + 1)) {
        if (const auto label = labelAt(text, colon, !labels.empty())) {
            labels.push_back(*label);
        }
    }
    if (std::ranges::none_of(labels,
                             [](const CreditLabel& label) { return label.credit != Credit::Other; })) {
        return credits;
    }
    QString left;
    qsizetype copied = 0;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const CreditLabel& label = labels[i];
        const qsizetype limit = i + 1 < labels.size() ? labels[i + 1].start : text.size();
        QString value = text.sliced(label.end, limit - label.end);
        qsizetype size = value.size();
        // The names end with the line or the sentence; a full stop behind an initial ends neither.
        static const QRegularExpression kEnd(
            u"\\n|(?<=[\\p{Ll}\\p{N})])\\p{M}?\\.(?:\\s(?=\\p{Lu}|\"|„|\\()|\\s*$)"_s);
        qsizetype behind = size;
        if (const auto end = kEnd.match(value); end.hasMatch()) {
            size = end.capturedStart();
            behind = end.capturedEnd();
        }
        QString names = withoutOthers(value.first(size).trimmed());
        // Some feeds cut descriptions within the next label.
        static const QRegularExpression kCutLabel(u"(?<=\\p{Ll})Fő\\p{Ll}*$"_s);
        names.remove(kCutLabel);
        if (label.credit != Credit::Other && names.isEmpty() && limit == text.size()) {
            left += QStringView(text).sliced(copied, label.start - copied);
            copied = text.size();
            continue;
        }
        const bool isNames = label.credit != Credit::Other && !names.isEmpty() && names.size() <= 1'000 &&
                             !names.front().isLower();
        if (!isNames) {
            continue;
        }
        std::optional<QString>& field = label.credit == Credit::Director ? credits.directedBy : credits.roles;
        field = field ? *field + u", "_s + names : names;
        left += QStringView(text).sliced(copied, label.start - copied);
        copied = label.end + behind;
    }
    left += QStringView(text).sliced(copied);
    text = tidiedLines(left);
    while (text.endsWith(u',') || text.endsWith(u';') || text.endsWith(u'-')) {
        text.chop(1);
        text = text.trimmed();
    }
    return credits;
}

} // namespace guide

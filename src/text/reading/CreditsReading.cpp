#include "text/reading/CreditsReading.h"

#include "text/cleaning/TextTidying.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <vector>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

enum class Credit { Director, Cast, Other };

/// Labels of credits, and of what may stand between them.
Credit creditOf(const QString& label, bool& isKnown) {
    static const QHash<QString, Credit> kLabels = [] {
        QHash<QString, Credit> labels;
        const auto add = [&labels](Credit credit, QStringView words) {
            for (const QStringView word : words.split(u'|')) {
                labels.insert(word.toString(), credit);
            }
        };
        add(Credit::Director,
            u"Regie|Regisseur|Regisseurin|Regia|Regista|Réalisateur|Réalisatrice|Réalisation|"
            u"Réal.|Regizor|Regizori|Regizorul|Reżyseria|Reżyser|Reż.|Yönetmen|Yönetmenler|"
            u"Σκηνοθεσία|Σκηνοθέτης|Σενάριο/Σκηνοθεσία|Rendezte|Rendező|Rendezők|Režie|Režisér|"
            u"Réžia|Režia|Režija|Redatelj|Redateljica|Reditelj|Режија|Редитељ|Режисьор|Режиссер|"
            u"Режисёр|Director|Directed by|Dirección|Režisors|Scenarist i redatelj|"
            u"Scenarij i režija|Regisor");
        add(Credit::Cast,
            u"Darsteller|Besetzung|Mit|Schauspieler|Cast|Interpreti|Attori|Interpretato da|Con|"
            u"Avec|Acteurs|Distribution|Distribuția|Distribuţia|Distributia|Actori|Cu|Obsada|"
            u"Występują|Grają|Oyuncular|Oyuncu Kadrosu|Παίζουν|Πρωταγωνιστούν|Ηθοποιοί|"
            u"Πρωταγωνιστές|Főszereplők|Főszereplő|Szereplők|Szereplő|Hrají|Účinkují|"
            u"V hlavních rolích|V hlavní roli|Hrajú|Účinkujú|V hlavných úlohách|V hlavnej úlohe|"
            u"Uloge|Glavne uloge|Glume|Igrajo|Улоге|Глуме|В ролите|Участват|Улоги|В ролях|Reparto|"
            u"Intérpretes|Starring|Stars|Lomās");
        add(Credit::Other,
            u"Drehbuch|Musik|Kamera|Sceneggiatura|Musiche|Fotografia|Scénario|Musique|Scenariu|"
            u"Scenariul|Muzica|Muzyka|Scenariusz|Zdjęcia|Senaryo|Müzik|Σενάριο|Μουσική|Παραγωγή|"
            u"Διάρκεια|Δημιουργός|Έτος|Παρουσίαση|Είδος|Guest|Író|Írta|Zene|Operatőr|"
            u"Forgatókönyvíró|Scénář|Scenár|Námět|Námet|Hudba|Scenarij|Scenario|Scenarist|Glazba|"
            u"Muzika|Сценарио|Сценарий|Музика|Оператор|Producer|Writer|Műsorvezető|Műsorvezetők|"
            u"Uvádza|Moderuje|Uvádí|Žanr|Godina|Země|Rok|Produkcija|Produkce|Gyártó|Country|Year");
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

/// Whether the last word may mean "and others"; the expression takes longer.
bool mayEndInOthers(QStringView names) {
    static constexpr std::array<QStringView, 26> kLastWords{
        u"a",     u"m",      u"altri",     u"al",     u"další", u"ďalší", u"iní",   u"jiní", u"mások",
        u"inni",  u"alții",  u"alţii",     u"altii",  u"ά",     u"α",     u"drugi", u"dr",   u"др",
        u"други", u"ostali", u"diğerleri", u"others", u"etc",   u"itd",   u"atd",   u"otros"};
    QStringView last = names.trimmed();
    const qsizetype all = last.size();
    while (!last.isEmpty() && (last.back() == u'.' || last.back() == u'…')) {
        last.chop(1);
    }
    const auto isJoint = [](QChar unit) {
        return unit.isSpace() || unit == u'.' || unit == u',' || unit == u';';
    };
    const auto begin = std::find_if(last.rbegin(), last.rend(), isJoint).base();
    const QStringView word = last.sliced(begin - last.begin());
    return word.isEmpty() ? all > 0 : std::ranges::any_of(kLastWords, [word](QStringView known) {
        return known.size() == word.size() && known.compare(word, Qt::CaseInsensitive) == 0;
    });
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
        if (mayEndInOthers(left)) {
            left.remove(kOthers);
        }
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

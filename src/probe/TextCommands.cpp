#include "parsers/ShowJSON.h"
#include "parsers/xmltv/XMLTVDate.h"
#include "probe/Command.h"
#include "text/categories/CategoryMapping.h"
#include "text/categories/CategoryText.h"
#include "text/categories/ShowClassifier.h"
#include "text/cleaning/FeedTextCleaning.h"
#include "text/cleaning/MarkupText.h"
#include "text/display/ShortTimeFormat.h"
#include "text/display/Transliteration.h"
#include "text/search/MatchWord.h"

#include <QJsonArray>
#include <QMap>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

Outcome classify(Context& context) {
    const Arguments& arguments = context.arguments;
    const TVListingsCategory categories = classifyEntry(
        arguments.value(u"source-id"_s),
        {arguments.value(u"details"_s), arguments.value(u"title"_s), arguments.value(u"description"_s)});
    QJsonArray names;
    for (const QString& name : textsOfBits(categories)) {
        names.append(name);
    }
    return QJsonObject{{u"categories"_s, qint64(categories)}, {u"names"_s, names}};
}

Outcome match(Context& context) {
    return QJsonObject{{u"match"_s, matchWord(context.input(), context.arguments.operands[0])}};
}

QJsonObject result(const std::optional<QString>& text) {
    return {{u"result"_s, jsonText(text)}};
}

QJsonObject bracketTaken(QString subtitle) {
    std::optional<QString> matched;
    if (const auto range = bracketRange(subtitle)) {
        matched = applySubtitleBracket(subtitle, range->start, range->length);
    }
    return {{u"result"_s, jsonText(subtitle)}, {u"matched"_s, jsonText(matched)}};
}

QJsonObject cleaned(const Context& context, const QString& text) {
    const CleanedDescription show =
        cleanDescription({text, {}, {}}, context.hosts.name(u"FeedSiteHost"_s).value_or(QString()));
    return {{u"result"_s, jsonText(show.description)},
            {u"roles"_s, jsonText(show.roles)},
            {u"directedBy"_s, jsonText(show.directedBy)}};
}

QJsonObject finished(const Context& context, const QString& text) {
    const FinishedSubtitle subtitle = finishSubtitle(text, context.arguments.has(u"recognised"_s));
    return {{u"subtitle1"_s, jsonText(subtitle.subtitle1)},
            {u"instantDetails1"_s, jsonText(subtitle.instantDetails1)}};
}

QJsonObject transliterated(const Context& context, const QString& text) {
    // Latin unless requested; the system's locale is ignored here.
    const Alphabet alphabet(context.arguments.has(u"cyrillic"_s) ||
                            (context.arguments.has(u"locale"_s) && writesCyrillic(context)));
    return result(latin2Cyrillic(text, context.arguments.value(u"language"_s).value_or(QString()), alphabet));
}

using TextOperation = std::function<QJsonObject(const Context&, const QString&)>;

const QMap<QString, TextOperation>& textOperations() {
    static const QMap<QString, TextOperation> kOperations{
        {u"decodeMarkup"_s, [](const Context&, const QString& text) { return result(decodeMarkup(text)); }},
        {u"trimmedListingText"_s,
         [](const Context&, const QString& text) { return result(trimmedListingText(text)); }},
        {u"showTitle"_s,
         [](const Context& context, const QString& text) {
             return result(showTitle(text, context.device.locale()));
         }},
        {u"showInstantDescription"_s,
         [](const Context&, const QString& text) { return result(showInstantDescription(text)); }},
        {u"hasProductionNote"_s,
         [](const Context&, const QString& text) {
             return QJsonObject{{u"result"_s, hasProductionNote(text)}};
         }},
        {u"isRepeatMarked"_s,
         [](const Context&, const QString& text) {
             return QJsonObject{{u"result"_s, isRepeatMarked(text)}};
         }},
        {u"cleanDescription"_s, cleaned},
        {u"finishSubtitle"_s, finished},
        {u"applySubtitleBracket"_s, [](const Context&, const QString& text) { return bracketTaken(text); }},
        {u"latin2Cyrillic"_s, transliterated},
        {u"xmltvDate"_s,
         [](const Context&, const QString& text) {
             return QJsonObject{{u"result"_s, jsonMoment(parseXMLTVDate(text.toStdString()))}};
         }},
    };
    return kOperations;
}

Outcome text(Context& context) {
    const QString& name = context.arguments.operands[0];
    const auto operation = textOperations().find(name);
    if (operation == textOperations().end()) {
        return Failure{u"there is no operation \"%1\"; there are %2"_s.arg(
                           name, QStringList(textOperations().keys()).join(", "_L1)),
                       true};
    }
    return (*operation)(context, context.input());
}

Outcome words(Context& context) {
    const QString& table = context.arguments.operands[0];
    const auto found = [](TVListingsCategory categories) {
        return QJsonObject{{u"categories"_s, qint64(categories)}, {u"recognised"_s, QJsonValue::Null}};
    };
    if (table == "subtitle"_L1) {
        const SubtitleCategories categories =
            mapSubtitleWords(context.input(), context.arguments.value(u"title"_s));
        return QJsonObject{{u"categories"_s, qint64(categories.categories)},
                           {u"recognised"_s, categories.recognised}};
    }
    using Table = TVListingsCategory (*)(const QString&);
    static const QMap<QString, Table> kTables{
        {u"attribute"_s, mapCategoryAttribute},  {u"bracket"_s, mapBracketCategories},
        {u"description"_s, mapDescriptionWords}, {u"instantDescription"_s, mapInstantDescriptionWords},
        {u"category"_s, mapCategoryText},
    };
    const auto known = kTables.find(table);
    if (known == kTables.end()) {
        return Failure{u"there is no table \"%1\"; there are %2, subtitle"_s.arg(
                           table, QStringList(kTables.keys()).join(", "_L1)),
                       true};
    }
    return found((*known)(context.input()));
}

Outcome categoryText(Context& context) {
    const QString& value = context.arguments.operands[0];
    const bool hexadecimal = value.startsWith("0x"_L1, Qt::CaseInsensitive);
    bool ok = false;
    const qlonglong number = value.toLongLong(&ok, hexadecimal ? 16 : 10);
    if (!ok || number < -0x80000000LL || number > 0xffffffffLL) {
        return Failure{u"\"%1\" is not a 32-bit number"_s.arg(value), true};
    }
    return QJsonObject{{u"text"_s, textForCategory(static_cast<TVListingsCategory>(number))}};
}

Outcome timeFormat(Context& context) {
    return QJsonObject{{u"format"_s, rowTimeFormat(context.arguments.operands[0])}};
}

} // namespace

std::vector<Command> textCommands() {
    return {
        {u"classify"_s,
         {u"[--source-id S] [--details T] [--title T] [--description T]"_s,
          {u"source-id"_s, u"details"_s, u"title"_s, u"description"_s},
          {},
          0,
          0},
         u"the categories of a show"_s,
         classify},
        {u"match-word"_s,
         {u"WORD"_s, {}, {}, 1, 1},
         u"whether the text on standard input has the word"_s,
         match},
        {u"text"_s,
         {u"OPERATION [--language L] [--cyrillic] [--recognised]"_s,
          {u"language"_s},
          {u"cyrillic"_s, u"recognised"_s},
          1,
          1},
         u"the result of an operation on the text on standard input"_s,
         text},
        {u"words"_s,
         {u"TABLE [--title T]"_s, {u"title"_s}, {}, 1, 1},
         u"the categories that a word table finds in the text on standard input"_s,
         words},
        {u"category-text"_s, {u"VALUE"_s, {}, {}, 1, 1}, u"the title of a category"_s, categoryText},
        {u"time-format"_s, {u"FORMAT"_s, {}, {}, 1, 1}, u"a row's time format"_s, timeFormat},
    };
}

} // namespace guide::probe

#include "parsers/xmltv/FeedShowTexts.h"

#include "text/cleaning/TextTidying.h"
#include "text/reading/CreditsReading.h"

#include <string>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

/// The text in the channel's language, otherwise the first one with any.
const FeedTexts::Each* chosen(const FeedTexts& texts, std::string_view language) {
    const FeedTexts::Each* best = nullptr;
    for (const FeedTexts::Each& each : texts.all()) {
        if (each.text.find_first_not_of(" \n\t") == std::string::npos) {
            continue;
        }
        const bool isOfLanguage = !language.empty() && std::string_view(each.kind).substr(0, 2) == language;
        if (isOfLanguage) {
            return &each;
        }
        best = best ? best : &each;
    }
    return best;
}

std::optional<QString> stringOf(const FeedTexts::Each* text) {
    return text ? std::optional(feedString(text->text)) : std::nullopt;
}

/// Names of people, each an element.
std::optional<QString> namesOf(const FeedTexts& elements) {
    QString names;
    for (const FeedTexts::Each& each : elements.all()) {
        QString name = tidiedTitle(feedString(each.text));
        constexpr qsizetype kLongestRemark = 16;
        if (name.size() <= kLongestRemark) {
            name = withoutOthers(name);
        }
        // The role is missing.
        if (name.endsWith(" als"_L1)) {
            name.chop(4);
        }
        if (!name.isEmpty()) {
            names += (names.isEmpty() ? QString() : u", "_s) + name;
        }
    }
    return names.isEmpty() ? std::nullopt : std::optional(std::move(names));
}

} // namespace

FeedShowTexts chosenTexts(const FeedDetails& details, std::string_view language) {
    FeedShowTexts texts{.title = {},
                        .subtitle = stringOf(chosen(details.subtitles, language)),
                        .description = stringOf(chosen(details.descriptions, language)),
                        .roles = namesOf(details.actors),
                        .directedBy = namesOf(details.directors),
                        .otherTitle = {}};
    if (const FeedTexts::Each* title = chosen(details.titles, language)) {
        texts.title = title->text;
        for (const FeedTexts::Each& each : details.titles.all()) {
            if (!texts.otherTitle && each.text != title->text && !each.text.empty()) {
                texts.otherTitle = tidiedTitle(feedString(each.text));
            }
        }
    }
    return texts;
}

} // namespace guide

#include "parsers/details/DetailPage.h"

#include "sources/WebURL.h"
#include "text/cleaning/MarkupText.h"

namespace guide {

using namespace Qt::StringLiterals;

std::optional<QString> textUnlessEmpty(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

std::optional<QString> decodedText(const std::optional<std::string_view>& lifted) {
    return lifted ? textUnlessEmpty(decodeMarkup(pageString(*lifted))) : std::nullopt;
}

std::optional<QUrl> decodedLink(const std::optional<std::string_view>& lifted, const QUrl& base) {
    const auto text = decodedText(lifted);
    if (!text) {
        return std::nullopt;
    }
    const QUrl link(text->trimmed());
    if (link.isEmpty() || !link.isValid()) {
        return std::nullopt;
    }
    const QUrl whole = link.isRelative() ? base.resolved(link) : link;
    return isWebURL(whole) ? std::optional(whole) : std::nullopt;
}

void addPicture(ShowDetails& show, const std::optional<QUrl>& picture) {
    if (picture) {
        show.pictures.insert(*picture);
    }
}

} // namespace guide

#include "parsers/details/HBODetails.h"

#include "text/cleaning/MarkupText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

bool isOfType(const QJsonObject& object, QLatin1StringView type) {
    return object["@type"_L1].toString() == type;
}

/// The names of the persons among the values, each once, joined by commas.
std::optional<QString> names(const QJsonValue& values) {
    QStringList names;
    for (const QJsonValue value : values.toArray()) {
        const QJsonObject person = value.toObject();
        if (isOfType(person, "Person"_L1)) {
            names.append(person["name"_L1].toString());
        }
    }
    names.removeAll(QString());
    names.removeDuplicates();
    return textUnlessEmpty(names.join(u", "_s));
}

TVListingsCategory categories(const QJsonObject& data) {
    TVListingsCategory mask = 0;
    if (isOfType(data, "Movie"_L1)) {
        mask = TVListingsCategoryMovies;
    } else if (isOfType(data, "TVSeries"_L1)) {
        mask = TVListingsCategorySeries;
    }
    for (const QJsonValue genre : data["genre"_L1].toArray()) {
        if (genre.toString().contains(u"dramă"_s)) {
            mask |= TVListingsCategoryDramas;
        }
    }
    return mask;
}

} // namespace

void readHBODetails(const DetailPage& page, ShowDetails& show) {
    MarkerWalk walk = page.walk();
    const auto json = walk.take("<div class=\"rich-snippet\"><script type=\"application/ld+json\">", "<");
    if (!json) {
        return;
    }
    const QJsonObject data =
        QJsonDocument::fromJson(QByteArray(json->data(), static_cast<qsizetype>(json->size()))).object();
    show.details.description = textUnlessEmpty(decodeMarkup(data["description"_L1].toString()));
    for (const QJsonValue value : data["image"_L1].toArray()) {
        const QJsonObject image = value.toObject();
        if (isOfType(image, "ImageObject"_L1)) {
            addPicture(show, decodedLink(image["url"_L1].toString().toStdString(), page.url));
        }
    }
    show.details.directedBy = names(data["director"_L1]);
    show.details.roles = names(data["actor"_L1]);
    show.categories = categories(data);
}

} // namespace guide

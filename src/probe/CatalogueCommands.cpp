#include "core/CatalogueFiles.h"
#include "core/ChannelFilter.h"
#include "core/SupportedChannelTypes.h"
#include "core/TVStationIcons.h"
#include "parsers/ShowJSON.h"
#include "probe/Command.h"

#include <QDir>
#include <QJsonArray>

#include <memory>

namespace guide::probe {

using namespace Qt::StringLiterals;

namespace {

Outcome filter(Context& context) {
    const QString& path = context.arguments.operands[0];
    RowTally tally;
    auto rows = rowsOfPropertyList(path, &tally);
    if (!rows) {
        return Failure{u"%1 cannot be read as a catalogue"_s.arg(path)};
    }
    HasIcon hasIcon = [](const QString&) { return true; };
    if (const auto folder = context.arguments.value(u"icons"_s)) {
        if (!QDir(*folder).exists()) {
            return Failure{u"%1 is not a folder"_s.arg(*folder)};
        }
        hasIcon = [icons = std::make_shared<TVStationIcons>(*folder, 1)](const QString& name) {
            return icons->hasIconFile(name);
        };
    }
    const auto types =
        SupportedChannelTypes::fromFile(context.bundleFolder + "/supported-channel-types.json"_L1);
    QJsonArray list;
    for (const CatalogueRow& kept : filteredChannels(*std::move(rows), types, hasIcon, &tally)) {
        QJsonObject row;
        for (const auto& [key, value] : kept.values.asKeyValueRange()) {
            row.insert(key, jsonText(value));
        }
        list.append(row);
    }
    if (const QString leftOut = tally.summary(u"channels"_s); !leftOut.isEmpty()) {
        qWarning("%s", qUtf8Printable(leftOut));
    }
    return QJsonObject{{u"channels"_s, list}};
}

} // namespace

std::vector<Command> catalogueCommands() {
    return {{u"filter"_s,
             {u"DATA_PLIST [--icons FOLDER]"_s, {u"icons"_s}, {}, 1, 1},
             u"the channels of a catalogue that the guide would show"_s,
             filter}};
}

} // namespace guide::probe

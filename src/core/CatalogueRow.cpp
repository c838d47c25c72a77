#include "core/CatalogueRow.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostSources = 7;

QStringList sourceIdsOf(const ChannelDictionary& values) {
    QStringList sourceIds;
    for (int number = 1; number <= kMostSources; ++number) {
        const auto source = values.constFind(u"Location%1"_s.arg(number));
        if (source == values.cend()) {
            break;
        }
        sourceIds.append(*source);
    }
    return sourceIds;
}

} // namespace

std::optional<CatalogueRow> catalogueRow(ChannelDictionary values, RowTally* tally) {
    const auto leftOut = [tally](RowProblem problem) {
        if (tally) {
            tally->leaveOut(problem);
        }
        return std::nullopt;
    };
    const QString icon = values.value(u"Icon"_s);
    const qsizetype slash = icon.indexOf(u'/');
    const QString title = values.value(u"Title"_s);
    const auto location = values.constFind(u"Location"_s);
    const auto language = values.constFind(u"Language"_s);
    if (location == values.cend() || language == values.cend() || title.isEmpty() || icon.isEmpty()) {
        return leftOut(RowProblem::Incomplete);
    }
    if (slash <= 0 || slash == icon.size() - 1) {
        return leftOut(RowProblem::Icon);
    }
    if (tally && !ObjectId::isHex(*location)) {
        tally->accept(RowProblem::Identity);
    }
    const auto stream = values.constFind(u"Stream"_s);
    CatalogueChannel channel{
        .id = ObjectId::fromHex(*location),
        .title = title,
        .language = *language,
        .region = icon.left(slash),
        .icon = icon.mid(slash + 1),
        .sourceIds = sourceIdsOf(values),
        .stream = stream == values.cend() ? std::nullopt : std::optional(*stream),
    };
    return CatalogueRow{std::move(channel), std::move(values)};
}

} // namespace guide

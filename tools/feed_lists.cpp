// Prints what the guide's reader keeps of feeds: for feed_accounting.py, which counts the same feeds on its
// own.

#include "parsers/ShowJSON.h"
#include "parsers/xmltv/ProgrammeSkipScan.h"
#include "parsers/xmltv/XMLTVToEntries.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QMap>
#include <QTextStream>

#include <array>
#include <iterator>
#include <vector>

namespace {

using namespace guide;
using namespace Qt::StringLiterals;

constexpr auto kUsage =
    "usage: feed-lists NOW FEED…\n"
    "\n"
    "NOW is the moment that counts as now, as 2026-11-21T10:00:00Z; each FEED a file of plain XMLTV in "
    "UTF-8.\n"
    "Prints a JSON object a line: \"kept\" holds the number of shows of each channel that the reader kept,\n"
    "\"filters\" how many filters by channel were tried, and \"differing\" those with which the feed, with "
    "the\n"
    "programmes of unwanted channels left out, gave other lists than the whole feed.\n";

/// Filters of several sizes are tried on every feed: one channel of so many is wanted.
constexpr std::array kFilterSteps{2, 3, 10, 40};

using Lists = QMap<QString, QStringList>;

Lists listsOf(const QByteArray& feed, const std::vector<QString>& wanted, const XMLTVOptions& options) {
    Lists lists;
    XMLTVToEntries reader(feed, wanted, options);
    for (FeedChannelEntries& channel : reader.entries()) {
        QStringList& list = lists[channel.sourceId];
        for (ExtendedTVEntry& entry : channel.entries) {
            list.append(QString::fromUtf8(QJsonDocument(showJSON(ShowItem(std::move(entry)))).toJson()));
        }
    }
    return lists;
}

QJsonObject account(const QByteArray& feed, const XMLTVOptions& options) {
    const Lists whole = listsOf(feed, {}, options);
    QJsonObject kept;
    for (auto list = whole.begin(); list != whole.end(); ++list) {
        kept[list.key()] = list->size();
    }
    int filters = 0;
    int differing = 0;
    for (const int step : kFilterSteps) {
        std::vector<QString> wanted;
        for (qsizetype i = 0; i < whole.size(); i += step) {
            wanted.push_back(std::next(whole.begin(), i).key());
        }
        if (wanted.empty()) {
            continue;
        }
        const auto rest = withoutUnwantedProgrammes(feed, WantedChannels(wanted));
        ++filters;
        if (rest && listsOf(*rest, wanted, options) != listsOf(feed, wanted, options)) {
            ++differing;
        }
    }
    return {{u"kept"_s, kept}, {u"filters"_s, filters}, {u"differing"_s, differing}};
}

} // namespace

int main(int count, char** words) {
    QTextStream out(stdout);
    QTextStream complaints(stderr);
    const QDateTime now =
        count > 2 ? QDateTime::fromString(QString::fromLocal8Bit(words[1]), Qt::ISODate) : QDateTime();
    if (!now.isValid()) {
        complaints << kUsage;
        return 2;
    }
    const Alphabet alphabet;
    const XMLTVOptions options{.shows = {.alphabet = alphabet},
                               .now = Moment{std::chrono::milliseconds{now.toMSecsSinceEpoch()}}};
    QLoggingCategory::setFilterRules(u"guide.*=false"_s);
    for (int i = 2; i < count; ++i) {
        QFile file(QString::fromLocal8Bit(words[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            complaints << file.fileName() << ": " << file.errorString() << '\n';
            return 1;
        }
        out << QJsonDocument(account(file.readAll(), options)).toJson(QJsonDocument::Compact) << '\n';
    }
    return 0;
}

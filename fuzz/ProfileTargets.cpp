// The files of a profile that a person, a sync tool or a failing disk may change.

#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "core/SelectionFile.h"
#include "core/Settings.h"
#include "parsers/formats/RecordedCall.h"
#include "platform/archive/Archive.h"
#include "platform/archive/ArchiveContainer.h"
#include "platform/linux/KeyValueJson.h"
#include "platform/linux/SettingsUserDefaults.h"
#include "sources/SourceHostTable.h"

#include <QCborArray>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace guide::fuzz {

namespace {

using namespace Qt::StringLiterals;

/// Reads the selection's file as it is or with a valid checksum, or its copy in the key-value store.
void readSelection(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    QByteArray content = input.whole();
    std::optional<std::vector<ObjectId>> selected;
    switch (input.choice(3)) {
    case 0:
        selected = selectionOfFile(content);
        break;
    case 1:
        content.prepend(QByteArray(kArchiveHeaderSize, '\0'));
        sealArchive(content);
        selected = selectionOfFile(content);
        break;
    default:
        if (const auto copy = keyValueFromJson(content)) {
            selected = selectionOfValue(copy->value);
        }
    }
    if (selected) {
        require(selectionOfFile(archivedData(selectionValue(*selected))) == selected,
                "a selection that was read can be written again");
    }
}

/// Reads a file of settings; every fourth input also changes one.
void readSettings(QByteArrayView bytes) {
    static const QTemporaryDir folder;
    static int number = 0;
    const FuzzInput input(bytes);
    // QSettings keeps what it has read from a file of the same name.
    const QString path = folder.filePath(QString::number(++number));
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(input.whole()) >= 0 && file.flush(),
            "the file of the test can be written");
    {
        SettingsUserDefaults defaults(path);
        const Settings settings(defaults);
        constexpr std::chrono::seconds kCentury{100LL * 366 * 86'400};
        require(settings.showCount() >= 1 && settings.showCount() <= 255, "some shows are shown");
        require(std::chrono::abs(settings.automaticUpdateInterval()) <= kCentury, "dates do not overflow");
        settings.imagesEnabled();
        settings.showBgImages();
        settings.colorizedShows();
        if (input.choice(4) == 3) {
            defaults.setInteger(u"currently_show_count"_s, 77);
            require(defaults.synchronize(), "a damaged file can be written");
            require(Settings(defaults).showCount() == 77, "a change holds");
            SettingsUserDefaults again(path);
            require(Settings(again).showCount() == 77, "a written change is read again");
        }
    }
    file.remove();
}

/// Parts: a host table, one that overrides it, a label.
void readHosts(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    std::vector<QByteArray> parts = input.parts(3);
    parts.resize(3);
    const auto own = SourceHostTable::fromJson(parts[1]);
    const SourceHostTable table = SourceHostTable::fromJson(parts[0])
                                      .value_or(SourceHostTable())
                                      .overriddenBy(own.value_or(SourceHostTable()));
    const QString label = QString::fromUtf8(parts[2]);
    QStringList keys = QJsonDocument::fromJson(parts[0]).object().keys();
    keys += QJsonDocument::fromJson(parts[1]).object().keys();
    const auto isURL = [](const QString& base) {
        return base.startsWith("http://"_L1, Qt::CaseInsensitive) ||
               base.startsWith("https://"_L1, Qt::CaseInsensitive);
    };
    for (const QString& key : keys) {
        const auto name = table.name(key);
        const auto base = table.base(key);
        const auto stem = table.baseOfStem(key, label);
        require(name.has_value() == base.has_value() && name.has_value() == stem.has_value(),
                "a host is present or missing in every form");
        if (name) {
            require(!name->isEmpty() && !name->endsWith(u'/'),
                    "a host is not empty and has no closing slash");
            require(isURL(*base) && isURL(*stem), "a base has a scheme");
            require(base->endsWith(*name), "a base ends with its name");
        }
    }
    table.isPrimaMaxSourceId(label);
}

} // namespace

std::vector<FuzzTarget> profileTargets() {
    return {
        {.name = "selection",
         .run = readSelection,
         .seeds =
             [] {
                 const QByteArray a = QByteArray::fromHex("58f4ded60befe78cb336a80a");
                 const QByteArray b = QByteArray::fromHex("58f4ded60befe78cb336a80b");
                 const QCborArray channels{a, b, QByteArray(11, 'x'), 5};
                 const QByteArray archive = archivedData(channels);
                 return std::vector<QByteArray>{
                     fuzzInput({archive}, 0), fuzzInput({archive.sliced(kArchiveHeaderSize)}, 1),
                     fuzzInput(
                         {keyValueJson({u"SelectedChannels"_s, QCborArray{a, b}, {7, u"desk-1"_s}}).value()},
                         2)};
             },
         .literals = {"platform/linux/KeyValueJson.cpp"}},
        {.name = "settings",
         .run = readSettings,
         .seeds =
             [] {
                 const QByteArray ini = "[General]\nshow_img=false\nbg_img=Yes\ncurrently_show_count=6\n"
                                        "data_update=43200.5\ncolorizedShows=1\n"
                                        "selectedCalendar=\"Ve\\x10d, a; b\"\nlist=a, b\n\n"
                                        "[%General]\nnoAlarmsSchedule\\0=@Variant(\\0\\0\\0\\x2\\0)\n";
                 return std::vector<QByteArray>{fuzzInput({ini}, 0), fuzzInput({ini}, 3),
                                                fuzzInput({"currently_show_count=0\n[a/b]\nc=1"}, 3)};
             },
         .literals = {"core/Settings.cpp"},
         .maxMemoryPerByte = 0},
        {.name = "hosts",
         .run = readHosts,
         .seeds =
             [] {
                 const QByteArray hosts =
                     test::recordedContent(QStringLiteral(QUELLIN_TEST_DATA "/recorded/hosts.json"));
                 const QByteArray own = R"({"HboHost": "%@.hbo.test:8080/", "NFeedHost": "HTTPS://n.test//",
                                           "PrimaMaxSourceId": "", "SFeedHost": 5})";
                 return std::vector<QByteArray>{fuzzInput({hosts, own, "cz"}), fuzzInput({own, "{}", "a.b"}),
                                                fuzzInput({hosts})};
             },
         .literals = {"sources/SourceHostTable.cpp", "parsers/SourceFormats.cpp"}},
    };
}

} // namespace guide::fuzz

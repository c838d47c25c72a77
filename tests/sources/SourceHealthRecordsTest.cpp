#include "sources/SourceHealthRecords.h"

#include "platform/files/FileReplacement.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace guide {
namespace {

const ObjectId kOne = ObjectId::fromHex(u"0123456789abcdef01234567"_s);
const ObjectId kTwo = ObjectId::fromHex(u"0123456789abcdef01234568"_s);
const Moment kAt(std::chrono::milliseconds(1'767'200'400'123));

SourceHealth failedLoad() {
    return {.at = kAt,
            .used = std::nullopt,
            .passedOver = {{u"č.1"_s, PassedOverReason::NoPage, 503, PageReason::Status},
                           {u"n.1"_s, PassedOverReason::OnlyPastShows},
                           {u"n.3"_s, PassedOverReason::NotASchedule}}};
}

SourceHealth goodLoad() {
    return {.at = kAt,
            .used = UsedSource{u"n.2"_s, kAt, 7, 280, std::nullopt, true, u"b.example"_s},
            .passedOver = {}};
}

struct SourceHealthRecordsTest : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"health.json"_s);

    SourceHealthRecords::ByChannel kept() const {
        SourceHealthRecords records(path);
        records.read();
        return records.all();
    }
};

TEST_F(SourceHealthRecordsTest, RestoresRecordsFromTheFile) {
    SourceHealthRecords records(path);
    records.record(kOne, failedLoad());
    records.record(kTwo, goodLoad());
    records.write({kOne, kTwo});
    EXPECT_EQ(kept(), records.all());

    // Records made before the file is read are newer.
    SourceHealthRecords other(path);
    other.record(kTwo, failedLoad());
    other.read();
    EXPECT_EQ(other.all(), (SourceHealthRecords::ByChannel{{kOne, failedLoad()}, {kTwo, failedLoad()}}));
}

TEST_F(SourceHealthRecordsTest, ReplacesADamagedFile) {
    SourceHealthRecords records(path);
    records.record(kOne, goodLoad());
    const QByteArray whole = sourceHealthJSON(records.all());
    QByteArray other = whole;
    other.replace("\"version\": 1", "\"version\": 2");
    for (const QByteArray& content : {QByteArray(), whole.chopped(3), QByteArray("[1]"), other}) {
        ASSERT_TRUE(replaceFile(path, content));
        EXPECT_TRUE(kept().empty()) << content.toStdString();
    }
    records.write({kOne});
    EXPECT_EQ(kept(), records.all());
}

TEST_F(SourceHealthRecordsTest, RetriesAFailedWrite) {
    const QString missing = folder.filePath(u"later/health.json"_s);
    SourceHealthRecords records(missing);
    records.record(kOne, goodLoad());
    records.write({kOne});
    EXPECT_FALSE(QFile::exists(missing));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"later"_s));
    records.write({kOne});
    EXPECT_TRUE(QFile::exists(missing));
}

} // namespace
} // namespace guide

#include "parsers/ShowJSON.h"
#include "parsers/formats/RecordedCall.h"

#include <QSet>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(RecordedPages, GiveTheExpectedLists) {
    const QStringList formats =
        test::recordedFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    ASSERT_FALSE(formats.isEmpty());
    for (const QString& format : formats) {
        const QDir folder(test::recordedFolder().filePath(format));
        QSet<QString> unread;
        for (const QString& file : folder.entryList(QDir::Files)) {
            if (!file.endsWith(".json"_L1) || file.endsWith(".page.json"_L1)) {
                unread.insert(file);
            }
        }
        const std::vector<QString> stems = test::recordedStems(format);
        EXPECT_FALSE(stems.empty()) << format.toStdString();
        for (const QString& stem : stems) {
            const test::RecordedCall call(stem);
            for (const QString& page : call.pageNames()) {
                unread.remove(page);
            }
            const QJsonDocument expected =
                QJsonDocument::fromJson(test::recordedContent(stem + ".expected.json"_L1));
            const QJsonDocument found(listsJSON(call.lists(call.pages())));
            EXPECT_TRUE(expected == found) << stem.toStdString() << " gives\n"
                                           << found.toJson().toStdString();
        }
        EXPECT_TRUE(unread.isEmpty()) << "no call reads " << unread.values().join(u", "_s).toStdString();
    }
}

} // namespace
} // namespace guide

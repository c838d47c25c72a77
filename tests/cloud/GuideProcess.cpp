#include "GuideProcess.h"

#include "SyncedGuide.h"
#include "alarms/FavoritesFile.h"
#include "alarms/SilentHours.h"
#include "app/SharedStoresChoice.h"
#include "core/SelectionFile.h"
#include "core/own/OwnSourceArchive.h"
#include "platform/linux/EventLoopQueues.h"
#include "platform/linux/LinuxClock.h"
#include "platform/memory/MemorySecretStore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSocketNotifier>

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/prctl.h>
#include <unistd.h>

namespace guide::test {

namespace {

const QString kReady = u"ready"_s;
const QString kChanged = u"changed"_s;
const QString kValues = u"values"_s;
const QString kKept = u"kept"_s;
constexpr int kPatience = 60'000;

QString textOf(const std::vector<Favorite>& rules) {
    QStringList titles;
    for (const Favorite& rule : rules) {
        titles << rule.identificator;
    }
    return titles.join(u' ');
}

QString textOf(const OwnSourceList& sources) {
    std::vector<int> numbers;
    for (const OwnSource& source : sources) {
        numbers.push_back(source.id.hex().toInt());
    }
    std::ranges::sort(numbers);
    QStringList texts;
    std::ranges::transform(numbers, std::back_inserter(texts),
                           [](int number) { return QString::number(number); });
    return texts.join(u' ');
}

QString textOf(const std::vector<ObjectId>& selected) {
    QStringList numbers;
    for (const ObjectId& channel : selected) {
        numbers << QString::number(channel.hex().toInt(nullptr, 16));
    }
    return numbers.join(u' ');
}

class SkewedClock final : public Clock {
  public:
    explicit SkewedClock(int hoursAhead)
        : m_ahead(hoursAhead) {}
    Moment now() const override { return m_clock.now() + m_ahead; }

  private:
    const LinuxClock m_clock;
    const std::chrono::hours m_ahead;
};

/// Answers commands from the standard input, a line each.
class Device {
  public:
    Device(const QString& profile, const QString& place, const QString& name, int hoursAhead)
        : m_clock(hoursAhead)
        , m_folders{profile, profile, {}, {}, profile, {}} {
        m_defaults.setString(u"sharedPlace"_s, place);
        m_defaults.setString(u"device"_s, name + u"-1"_s);
        m_choice = std::make_unique<SharedStoresChoice>(
            SharedStoresChoice::Environment{m_folders, m_defaults, m_clock, m_secrets, m_queues});
        m_store = &m_choice->keyValueStore();
        m_guide = std::make_unique<SyncedGuide>(m_clock, m_queues, *m_store, profile);
        m_guide->sync.cloudDidChangeExternally({});
    }
    ~Device() {
        m_guide->shows.finishWriting();
        m_guide->channels.finishWriting();
        m_guide->sources.finishWriting();
        m_choice->finish(std::chrono::seconds(2));
        m_queues.shutDown();
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    void answer(const QString& line) {
        const QStringList words = line.split(u' ');
        const QString& key = words.first();
        const QString before = values().value(key);
        if (key == u"activate"_s) {
            m_guide->sync.cloudDidChangeExternally({});
        } else if (key == u"retry"_s) {
            m_choice->retryNow();
        } else if (key == u"flush"_s) {
            m_store->flush();
        } else if (words.size() > 1) {
            change(key, words.mid(1));
        }
        QJsonObject reply = state();
        if (key == kKept) {
            reply.insert(kKept, kept());
        }
        reply.insert(kChanged, reply.value(kValues)[key].toString() != before);
        const QByteArray text = QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n';
        std::cout.write(text.constData(), text.size()).flush();
    }

  private:
    void change(const QString& key, const QStringList& words) {
        if (key == kSharedLists[0]) {
            std::vector<Favorite> rules = m_guide->shows.favorites().value_or(std::vector<Favorite>());
            const auto found = std::ranges::find(rules, words[1], &Favorite::identificator);
            const bool isAdded = words[0] == u"add"_s;
            if (isAdded != (found == rules.end())) {
                return;
            }
            if (isAdded) {
                rules.push_back({words[1], 10, m_clock.now(), {}});
            } else {
                rules.erase(found);
            }
            m_guide->shows.setFavorites(std::move(rules));
        } else if (key == kSharedLists[1]) {
            std::vector<int> numbers;
            for (const QString& word : words) {
                numbers.push_back(word.toInt());
            }
            m_guide->channels.setSelected(SyncedGuide::channelsNumbered(numbers));
        } else if (key == kSharedSources) {
            OwnSource source;
            source.id = OwnSourceId::fromHex(words[1].rightJustified(16, u'0')).value_or(OwnSourceId());
            source.address = u"https://tv.example/"_s + words[1];
            words[0] == u"add"_s ? m_guide->sources.put(source) : m_guide->sources.remove(source.id);
        } else {
            set(key, words[0].toInt());
        }
    }

    void set(const QString& key, int number) {
        if (key == kSharedSettings[0]) {
            setSilentHoursEnabled(*m_store, number % 2 == 0);
        } else if (key == kSharedSettings[1]) {
            setSilentHoursFrom(*m_store, Moment(std::chrono::minutes(number)));
        } else if (key == kSharedSettings[2]) {
            setSilentHoursTo(*m_store, Moment(std::chrono::minutes(number)));
        } else {
            m_store->setValue(key, number);
        }
    }

    SharedTexts values() {
        SharedTexts texts{
            {kSharedLists[0], textOf(m_guide->shows.favorites().value_or(std::vector<Favorite>()))},
            {kSharedLists[1], textOf(m_guide->channels.selected())},
            {kSharedSources, textOf(*m_guide->sources.snapshot())}};
        for (const QString& key : kSharedSettings) {
            const auto value = m_store->valueForKey(key);
            texts.insert(key, value ? sharedText(key, *value) : QString());
        }
        return texts;
    }

    QJsonObject state() {
        QJsonObject shared;
        const SharedTexts texts = values();
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            shared.insert(text.key(), *text);
        }
        const SharedStoreState store = m_choice->place().state;
        const bool isReady = store.connection == SharedStoreConnection::Connected && store.isRead &&
                             !m_guide->shows.hasUnshared() && !m_guide->channels.hasUnshared();
        return {{kReady, isReady}, {kValues, shared}};
    }

    QJsonObject kept() const {
        QJsonArray rules;
        QJsonArray selections;
        for (const ReplacedList& list : m_guide->kept()) {
            // Older ones may be removed meanwhile.
            if (const auto found = m_guide->replaced.favorites(list.name)) {
                rules.append(textOf(*found));
            } else if (const auto selected = m_guide->replaced.selection(list.name)) {
                selections.append(textOf(*selected));
            }
        }
        return {{kSharedLists[0], rules}, {kSharedLists[1], selections}};
    }

    EventLoopQueues m_queues;
    const SkewedClock m_clock;
    MemorySecretStore m_secrets;
    MemoryUserDefaults m_defaults;
    const Folders m_folders;
    std::unique_ptr<SharedStoresChoice> m_choice;
    KeyValueStore* m_store = nullptr;
    std::unique_ptr<SyncedGuide> m_guide;
};

} // namespace

QString sharedText(const QString& key, const QCborValue& value) {
    if (key == kSharedLists[0]) {
        return textOf(favoritesOfMirror(value).value_or(std::vector<Favorite>()));
    }
    if (key == kSharedLists[1]) {
        return textOf(selectionOfValue(value).value_or(std::vector<ObjectId>()));
    }
    if (key == kSharedSources) {
        return textOf(ownSourcesOfValue(value).value_or(StoredSources()).sources);
    }
    return value.isDateTime() ? value.toDateTime().toUTC().toString(Qt::ISODateWithMs)
                              : value.toVariant().toString();
}

GuideProcess::GuideProcess(const QString& profile, const QString& place, const QString& name, int hoursAhead)
    : m_arguments{u"--device"_s, profile, place, name, QString::number(hoursAhead)} {
    EXPECT_TRUE(QDir().mkpath(profile));
    m_process.setStandardErrorFile(profile + u"/log"_s, QIODevice::Append);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

void GuideProcess::start() {
    m_process.start(QCoreApplication::applicationFilePath(), m_arguments);
    EXPECT_TRUE(m_process.waitForStarted(kPatience));
}

void GuideProcess::end() {
    m_process.closeWriteChannel();
    EXPECT_TRUE(m_process.waitForFinished(kPatience));
    EXPECT_EQ(m_process.exitCode(), 0);
}

void GuideProcess::kill() {
    m_process.kill();
    EXPECT_TRUE(m_process.waitForFinished(kPatience));
}

GuideState GuideProcess::ask(const QString& command) {
    m_process.write(command.toUtf8() + '\n');
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(kPatience)) {
            ADD_FAILURE() << "no answer to " << command.toStdString() << ": "
                          << m_process.errorString().toStdString();
            return {};
        }
    }
    const QJsonObject reply = QJsonDocument::fromJson(m_process.readLine()).object();
    GuideState state{.values = {},
                     .kept = {},
                     .isReady = reply.value(kReady).toBool(),
                     .isChanged = reply.value(kChanged).toBool()};
    const QJsonObject values = reply.value(kValues).toObject();
    for (auto value = values.begin(); value != values.end(); ++value) {
        state.values.insert(value.key(), value->toString());
    }
    for (const QString& key : kSharedLists) {
        state.kept.insert(key, reply.value(kKept)[key].toVariant().toStringList());
    }
    return state;
}

int runGuideProcess(const QStringList& arguments) {
    Device device(arguments[0], arguments[1], arguments[2], arguments[3].toInt());
    QByteArray received;
    QSocketNotifier notifier(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
        char buffer[4096];
        const ssize_t size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0) {
            QCoreApplication::quit();
            return;
        }
        received.append(buffer, size);
        for (qsizetype end = received.indexOf('\n'); end >= 0; end = received.indexOf('\n')) {
            device.answer(QString::fromUtf8(received.left(end)));
            received.remove(0, end + 1);
        }
    });
    return QCoreApplication::exec();
}

} // namespace guide::test

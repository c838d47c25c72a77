#include "screens/sources/OwnChannelsViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kChannels = "channels"_L1;
constexpr auto kSettings = "settings"_L1;
constexpr auto kLanguage = "language"_L1;
constexpr auto kShift = "shift"_L1;

} // namespace

OwnChannelsViewController::OwnChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     const OwnSourceId& source)
    : m_environment(std::move(environment))
    , m_source(source) {}

void OwnChannelsViewController::viewDidLoad() {
    setTitle(Localized::tr("Time and language"));
    table().setEmptyNote(EmptyNote{Localized::tr("No channels"), {}});
}

void OwnChannelsViewController::viewWillAppear() {
    table().deselectRow();
    const QLocale locale = m_environment->device.locale();
    Section section{.id = kChannels};
    const auto source = m_environment->sourceActions->sourceWithId(m_source);
    for (const OwnChannel& channel : source ? source->channels : std::vector<OwnChannel>()) {
        QStringList facts{languageText(channel.language, locale)};
        if (channel.shift != std::chrono::minutes(0)) {
            facts << shiftText(channel.shift, locale);
        }
        section.rows.push_back({.id = {section.id, channel.key},
                                .content = TextRow{.title = channel.title,
                                                   .subtitle = facts.join(u" · "_s),
                                                   .accessory = Accessory::Disclosure},
                                .selectable = true});
    }
    table().setSections({std::move(section)});
}

void OwnChannelsViewController::rowEvent(const RowId& id, const RowEvent& event) {
    NavigationController* navigation = navigationController();
    if (navigation && std::holds_alternative<Tapped>(event)) {
        navigation->pushFrom(*this,
                             std::make_shared<OwnChannelViewController>(m_environment, m_source, *id.name()));
    }
}

// ---- one channel

OwnChannelViewController::OwnChannelViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                   const OwnSourceId& source, QString key)
    : m_environment(std::move(environment))
    , m_source(source)
    , m_key(std::move(key)) {}

void OwnChannelViewController::viewWillAppear() {
    if (const auto source = m_environment->sourceActions->sourceWithId(m_source)) {
        const auto channel = std::ranges::find(source->channels, m_key, &OwnChannel::key);
        if (channel != source->channels.end()) {
            show(*channel);
        }
    }
}

void OwnChannelViewController::show(const OwnChannel& channel) {
    setTitle(channel.title);
    const QLocale locale = m_environment->device.locale();
    Section section{.id = kSettings,
                    .footer = Localized::tr(
                        "The language decides in which category a show is. The channel's times are moved "
                        "in addition to those of the whole source.")};
    const auto languages = languageChoices(channel.language, locale);
    ChoiceRow language{
        .title = Localized::tr("Language"),
        .chosen = static_cast<int>(std::ranges::find(languages, channel.language) - languages.begin())};
    for (const QString& code : languages) {
        language.choices.push_back(languageText(code, locale));
    }
    section.rows.push_back({.id = {section.id, QString(kLanguage)}, .content = std::move(language)});
    const auto shifts = shiftChoices(channel.shift);
    ChoiceRow shift{.title = Localized::tr("Move its times"),
                    .chosen = static_cast<int>(std::ranges::find(shifts, channel.shift) - shifts.begin())};
    for (const std::chrono::minutes each : shifts) {
        shift.choices.push_back(shiftText(each, locale));
    }
    section.rows.push_back({.id = {section.id, QString(kShift)}, .content = std::move(shift)});
    table().setSections({std::move(section)});
}

void OwnChannelViewController::rowEvent(const RowId& id, const RowEvent& event) {
    const auto* chosen = std::get_if<Chosen>(&event);
    auto source = m_environment->sourceActions->sourceWithId(m_source);
    if (!chosen || !source) {
        return;
    }
    const auto channel = std::ranges::find(source->channels, m_key, &OwnChannel::key);
    if (channel == source->channels.end()) {
        return;
    }
    const auto place = static_cast<std::size_t>(chosen->choice);
    if (*id.name() == kLanguage) {
        channel->language = languageChoices(channel->language, m_environment->device.locale())[place];
        channel->languageCorrected = true;
    } else {
        channel->shift = shiftChoices(channel->shift)[place];
    }
    m_environment->sourceActions->update(*source);
    show(*channel);
}

} // namespace guide

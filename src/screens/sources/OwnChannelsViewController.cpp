#include "screens/sources/OwnChannelsViewController.h"

#include "core/PictureDecoding.h"
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
constexpr auto kPicture = "picture"_L1;
constexpr auto kRemovePicture = "remove picture"_L1;

} // namespace

OwnChannelsViewController::OwnChannelsViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                     const OwnSourceId& source)
    : m_environment(std::move(environment))
    , m_source(source) {}

void OwnChannelsViewController::viewDidLoad() {
    setTitle(Localized::tr("Settings of channels"));
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
    table().deselectRow();
    show();
}

std::optional<OwnChannel> OwnChannelViewController::channel() const {
    if (const auto source = m_environment->sourceActions->sourceWithId(m_source)) {
        const auto found = std::ranges::find(source->channels, m_key, &OwnChannel::key);
        return found == source->channels.end() ? std::nullopt : std::optional(*found);
    }
    return std::nullopt;
}

void OwnChannelViewController::show() {
    if (const std::optional<OwnChannel> shown = channel()) {
        setTitle(shown->title);
        table().setSections({settingSection(*shown), pictureSection()});
    }
}

Section OwnChannelViewController::settingSection(const OwnChannel& channel) const {
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
    return section;
}

Section OwnChannelViewController::pictureSection() const {
    Section section{.id = kPicture};
    section.rows.push_back(
        {.id = {section.id, QString(kPicture)},
         .content =
             TextRow{.title = Localized::tr("Picture…"),
                     .accessory = m_taking ? Accessory::Spinner : Accessory::Disclosure,
                     .icon = {PictureKey::Kind::ChannelIcon, ownIconName(ownChannelId(m_source, m_key))}},
         .selectable = true});
    if (m_environment->sourceActions->hasPicture(m_source, m_key)) {
        section.footer = Localized::tr("Your own picture, in place of that of the source.");
        section.rows.push_back(
            {.id = {section.id, QString(kRemovePicture)},
             .content = ButtonRow{Localized::tr("Remove picture"), ButtonRow::Style::Destructive},
             .selectable = true});
    }
    return section;
}

void OwnChannelViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (const auto* chosen = std::get_if<Chosen>(&event)) {
        change(*id.name(), static_cast<std::size_t>(chosen->choice));
    } else if (std::holds_alternative<Tapped>(event)) {
        table().deselectRow();
        if (*id.name() == kPicture) {
            choosePicture();
        } else if (*id.name() == kRemovePicture) {
            m_environment->sourceActions->removePicture(m_source, m_key);
            show();
        }
    }
}

void OwnChannelViewController::change(const QString& name, std::size_t choice) {
    auto source = m_environment->sourceActions->sourceWithId(m_source);
    if (!source) {
        return;
    }
    const auto channel = std::ranges::find(source->channels, m_key, &OwnChannel::key);
    if (channel == source->channels.end()) {
        return;
    }
    if (name == kLanguage) {
        channel->language = languageChoices(channel->language, m_environment->device.locale())[choice];
        channel->languageCorrected = true;
    } else {
        channel->shift = shiftChoices(channel->shift)[choice];
    }
    m_environment->sourceActions->update(*source);
    show();
}

void OwnChannelViewController::choosePicture() {
    m_environment->navigation.presentFileChooser(
        {Localized::tr("Choose a picture"),
         [weak = weakFromThis<OwnChannelViewController>()](const QString& file) {
             if (const auto self = weak.lock()) {
                 self->take(file);
             }
         }});
}

void OwnChannelViewController::take(const QString& file) {
    m_taking = m_environment->sourceActions->setPicture(
        m_source, m_key, file, [weak = weakFromThis<OwnChannelViewController>(), file](bool isSet) {
            if (const auto self = weak.lock()) {
                self->m_taking.reset();
                self->show();
                if (!isSet) {
                    self->m_environment->navigation.presentNotice(
                        {Localized::tr("“%1” is no picture that can be shown, or larger than %2.")
                             .arg(file.section(u'/', -1),
                                  self->m_environment->device.locale().formattedDataSize(
                                      kChannelIconLimits.bytes, 0, QLocale::DataSizeSIFormat))});
                }
            }
        });
    show();
}

} // namespace guide

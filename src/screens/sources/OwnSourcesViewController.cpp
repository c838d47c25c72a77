#include "screens/sources/OwnSourcesViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "screens/sources/AddSourceViewController.h"
#include "screens/sources/SourceHealthViewController.h"
#include "screens/sources/SourceTexts.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const SectionId& section() {
    static const SectionId id = u"sources"_s;
    return id;
}

constexpr auto kIcons = "icons"_L1;

} // namespace

OwnSourcesViewController::OwnSourcesViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                                   std::function<void()> openCatalogue)
    : m_environment(std::move(environment))
    , m_openCatalogue(std::move(openCatalogue)) {}

void OwnSourcesViewController::viewDidLoad() {
    setTitle(Localized::tr("My sources"));
    setRightBarButtons({{BarButton::Kind::Title, Localized::tr("Add a source"), [this] { add(); }}});
    table().setEmptyNote(EmptyNote{Localized::tr("No sources yet"),
                                   Localized::tr("Add feeds, playlists and programs, and choose from their "
                                                 "channels."),
                                   Localized::tr("Add a source"), [this] { add(); }});
}

void OwnSourcesViewController::viewWillAppear() {
    table().deselectRow();
    show();
}

void OwnSourcesViewController::ownSourcesChanged() {
    if (viewLoaded()) {
        show();
    }
}

void OwnSourcesViewController::show() {
    struct Line {
        bool problem;
        Row row;
    };
    std::vector<Line> lines;
    const SharedOwnSources sources = m_environment->sourceActions->sources();
    for (const OwnSource& source : *sources) {
        lines.push_back(
            {isProblem(m_environment->sourceActions->status(source.id).result), sourceRow(source)});
    }
    std::ranges::stable_partition(lines, &Line::problem);
    Section rows{.id = section()};
    for (Line& line : lines) {
        rows.rows.push_back(std::move(line.row));
    }
    table().setSections({std::move(rows), iconSection()});
}

Section OwnSourcesViewController::iconSection() const {
    const SourceActions& actions = *m_environment->sourceActions;
    Section icons{.id = kIcons};
    if (actions.sources()->empty()) {
        return icons;
    }
    icons.footer =
        Localized::tr("Feeds and playlists name icons on servers of others. These servers then learn "
                      "the network address of this device and which channels you chose.");
    icons.rows.push_back(
        {.id = {icons.id, QString(kIcons)},
         .content = SwitchRow{Localized::tr("Icons from other hosts"), {}, actions.iconsFromOtherHosts()}});
    return icons;
}

Row OwnSourcesViewController::sourceRow(const OwnSource& source) const {
    const SourceStatus status = m_environment->sourceActions->status(source.id);
    const bool problem = isProblem(status.result);
    QStringList lines;
    if (problem) {
        lines << sourceResultText(status.result, status.detail);
    }
    const int served = servedChannels(source.id, *m_environment->sourceActions->sources());
    QStringList counts;
    if (!source.channels.empty() || served == 0) {
        counts << Localized::tr("%n channel(s) chosen", nullptr, static_cast<int>(source.channels.size()));
    }
    if (served > 0) {
        counts << Localized::tr("schedules for %n channel(s)", nullptr, served);
    }
    if (status.channels > 0 && source.kind == OwnSourceKind::Playlist) {
        const auto scheduled = std::ranges::count_if(
            source.channels, [](const OwnChannel& channel) { return channel.guide.has_value(); });
        counts << Localized::tr("%1 with a schedule")
                      .arg(m_environment->device.locale().toString(qlonglong(scheduled)));
    } else if (status.channels > 0) {
        counts << Localized::tr("%1 of %2 with shows")
                      .arg(m_environment->device.locale().toString(status.channelsWithShows),
                           m_environment->device.locale().toString(status.channels));
    }
    lines << counts.join(u" · "_s);
    const auto time = [this](Moment moment) {
        return nearDayAndTime(moment, m_environment->clock.now(), m_environment->device);
    };
    QStringList times;
    if (status.running) {
        times << Localized::tr("being read");
    } else {
        if (status.lastSuccess) {
            times << Localized::tr("from %1").arg(time(*status.lastSuccess));
        }
        if (status.nextTry) {
            times << Localized::tr("next try %1").arg(time(*status.nextTry));
        }
    }
    lines << times.join(u" · "_s);
    lines.removeAll(QString());
    return {.id = {section(), source.id.hex()},
            .content = TextRow{.title = source.name,
                               .subtitle = lines.join(u'\n'),
                               .titleColor = problem ? ColorRole::Alarm : ColorRole::Label,
                               .accessory = status.running ? Accessory::Spinner : Accessory::Disclosure,
                               .symbol = problem ? std::optional(Symbol::Warning) : std::nullopt},
            .selectable = true};
}

void OwnSourcesViewController::rowEvent(const RowId& id, const RowEvent& event) {
    if (const auto* toggled = std::get_if<Toggled>(&event)) {
        m_environment->sourceActions->setIconsFromOtherHosts(toggled->on);
        show();
        return;
    }
    const auto source = OwnSourceId::fromHex(*id.name());
    NavigationController* navigation = navigationController();
    if (source && navigation && std::holds_alternative<Tapped>(event)) {
        navigation->pushFrom(*this, std::make_shared<SourceHealthViewController>(m_environment, *source));
    }
}

std::vector<RowAction> OwnSourcesViewController::actionsForRow(const RowId& id) {
    const auto source = OwnSourceId::fromHex(*id.name());
    if (!source) {
        return {};
    }
    return {{Localized::tr("Refresh"), {}, ColorRole::Tint, [environment = m_environment, source = *source] {
                 environment->sourceActions->refresh(source);
             }}};
}

void OwnSourcesViewController::add() {
    if (NavigationController* navigation = navigationController()) {
        navigation->pushFrom(*this, std::make_shared<AddSourceViewController>(
                                        m_environment, AddSourceViewController::Start{{}, m_openCatalogue}));
    }
}

} // namespace guide

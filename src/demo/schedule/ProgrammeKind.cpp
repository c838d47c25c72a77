#include "demo/schedule/ProgrammeKind.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace guide {

namespace {

using Title = ProgrammeKind::Title;
using Credits = ProgrammeKind::Credits;

constexpr std::array kKinds = {
    // films
    ProgrammeKind{"film_comedy", 85, 115, Topic::Comedy, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_drama", 90, 140, Topic::Drama, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_crime", 85, 120, Topic::Crime, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_thriller", 90, 125, Topic::Thriller, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_scifi", 95, 135, Topic::ScienceFiction, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_fantasy", 95, 135, Topic::Fantasy, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_horror", 80, 105, Topic::Horror, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_western", 85, 120, Topic::Western, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_adventure", 90, 125, Topic::Adventure, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"film_romance", 85, 115, Topic::Romance, Title::PerBroadcast, Credits::Cast, 0, true},
    // series
    ProgrammeKind{"soap", 40, 55, Topic::Series, Title::Serial, Credits::Cast, 0, false},
    ProgrammeKind{"series", 45, 65, Topic::Series, Title::Serial, Credits::Cast, 13, false},
    ProgrammeKind{"crime", 45, 70, Topic::CrimeSeries, Title::Serial, Credits::Cast, 10, false},
    ProgrammeKind{"sitcom", 20, 35, Topic::ComedySeries, Title::Serial, Credits::Cast, 24, false},
    // documentaries
    ProgrammeKind{"doc", 40, 60, Topic::Documentary, Title::PerBroadcast, Credits::Director, 0, true},
    ProgrammeKind{"nature", 40, 60, Topic::Documentary, Title::PerBroadcast, Credits::Director, 0, true},
    ProgrammeKind{"history", 40, 60, Topic::Documentary, Title::PerBroadcast, Credits::Director, 0, true},
    ProgrammeKind{"travel", 25, 55, Topic::Documentary, Title::PerBroadcast, Credits::None, 0, false},
    // news
    ProgrammeKind{"breakfast", 60, 240, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"morning", 60, 240, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"news", 10, 45, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"flash", 5, 15, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"weather", 5, 10, Topic::Weather, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"region", 10, 30, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"business", 10, 30, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"press", 10, 30, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"interview", 15, 35, Topic::News, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"debate", 40, 60, Topic::News, Title::Permanent, Credits::None, 0, false},
    // entertainment
    ProgrammeKind{"talk", 40, 65, Topic::Entertainment, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"quiz", 25, 60, Topic::Quiz, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"show", 70, 130, Topic::Entertainment, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"magazine", 20, 45, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"cooking", 20, 40, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"garden", 20, 40, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"hobby", 20, 40, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    // children
    ProgrammeKind{"cartoon", 5, 25, Topic::Children, Title::Serial, Credits::None, 26, false},
    ProgrammeKind{"kidseries", 25, 35, Topic::Children, Title::Serial, Credits::None, 13, false},
    ProgrammeKind{"kidshow", 20, 45, Topic::Children, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"bedtime", 10, 15, Topic::Children, Title::Serial, Credits::None, 0, false},
    ProgrammeKind{"fairytale", 60, 100, Topic::Children, Title::PerBroadcast, Credits::Cast, 0, true},
    ProgrammeKind{"signoff", 30, 720, Topic::Children, Title::Permanent, Credits::None, 0, false},
    // music
    ProgrammeKind{"concert", 55, 110, Topic::Music, Title::PerBroadcast, Credits::None, 0, false},
    ProgrammeKind{"clips", 30, 90, Topic::Music, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"musicmag", 25, 45, Topic::Music, Title::Permanent, Credits::None, 0, false},
    // sport
    ProgrammeKind{"match", 105, 150, Topic::Sports, Title::PerBroadcast, Credits::None, 0, false},
    ProgrammeKind{"race", 60, 150, Topic::Sports, Title::PerBroadcast, Credits::None, 0, false},
    ProgrammeKind{"classic", 50, 100, Topic::Sports, Title::PerBroadcast, Credits::None, 0, false},
    ProgrammeKind{"sportmag", 25, 60, Topic::Sports, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"sportnews", 5, 20, Topic::Sports, Title::Permanent, Credits::None, 0, false},
    // between programmes
    ProgrammeKind{"moviemag", 15, 30, Topic::Magazine, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"short", 5, 20, Topic::None, Title::PerBroadcast, Credits::None, 0, false},
    ProgrammeKind{"shop", 30, 240, Topic::None, Title::Permanent, Credits::None, 0, false},
    ProgrammeKind{"night", 30, 300, Topic::None, Title::Permanent, Credits::None, 0, false},
};

} // namespace

const ProgrammeKind* programmeKind(QStringView name) {
    const auto* const it = std::find_if(kKinds.begin(), kKinds.end(), [name](const ProgrammeKind& kind) {
        return name == QLatin1StringView(kind.name);
    });
    return it == kKinds.end() ? nullptr : it;
}

} // namespace guide

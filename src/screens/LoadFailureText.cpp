#include "screens/LoadFailureText.h"

#include "screens/Localized.h"

namespace guide {

QString loadFailureText(const LoadFailure& failure) {
    const bool hostKnown = !failure.host.isEmpty();
    switch (failure.reason) {
    case LoadFailureReason::NoSource:
        return Localized::tr("No source for this channel");
    case LoadFailureReason::NoAnswer:
        return hostKnown ? Localized::tr("No answer from %1").arg(failure.host) : Localized::tr("No answer");
    case LoadFailureReason::Status:
        return Localized::tr("Status %1 from %2").arg(QString::number(failure.status), failure.host);
    case LoadFailureReason::NotASchedule:
        return hostKnown ? Localized::tr("Not a schedule: %1").arg(failure.host)
                         : Localized::tr("Not a schedule");
    case LoadFailureReason::NoShows:
        return hostKnown ? Localized::tr("No shows of this channel from %1").arg(failure.host)
                         : Localized::tr("No shows of this channel");
    case LoadFailureReason::OnlyPastShows:
        return hostKnown ? Localized::tr("Only past shows from %1").arg(failure.host)
                         : Localized::tr("Only past shows");
    case LoadFailureReason::OwnSource:
        return Localized::tr("The source %1 could not be read").arg(failure.host);
    }
    return {};
}

} // namespace guide

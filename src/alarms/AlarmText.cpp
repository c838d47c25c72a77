#include "alarms/AlarmText.h"

#include "text/display/Localized.h"

namespace guide {

QString leadTimeText(std::optional<int> minutes) {
    if (!minutes) {
        return Localized::tr("None");
    }
    return *minutes == 0        ? Localized::tr("At beginning of the show")
           : *minutes % 60 == 0 ? Localized::tr("%1h before").arg(*minutes / 60)
                                : Localized::tr("%1min before").arg(*minutes);
}

QString leadTimeText(const Favorite* rule, std::optional<int> minutes) {
    if (!rule || !rule->minutes) {
        return leadTimeText(minutes);
    }
    const QString text = leadTimeText(rule->minutes);
    if (!rule->previouslyShown) {
        return Localized::tr("%1 (any broadcast)").arg(text);
    }
    return (*rule->previouslyShown ? Localized::tr("%1 (every replay)")
                                   : Localized::tr("%1 (every premiere)"))
        .arg(text);
}

} // namespace guide

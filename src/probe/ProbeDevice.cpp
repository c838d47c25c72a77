#include "probe/ProbeDevice.h"

#include <unistd.h>

namespace guide::probe {

FixedDevice probeDevice(const QTimeZone& zone, const QLocale& locale) {
    FixedDevice device;
    device.zone = zone;
    device.deviceLocale = locale;
    device.memory = std::uint64_t(sysconf(_SC_PHYS_PAGES)) * std::uint64_t(sysconf(_SC_PAGE_SIZE));
    return device;
}

QLocale localeNamed(const QString& name) {
    const qsizetype at = name.indexOf(u'@');
    const QLocale locale(name.left(at < 0 ? name.size() : at));
    if (at < 0) {
        return locale;
    }
    const QStringView script = QStringView(name).sliced(at + 1);
    const QLocale::Script named = script == u"cyrillic" ? QLocale::CyrillicScript
                                  : script == u"latin"  ? QLocale::LatinScript
                                                        : locale.script();
    return QLocale(locale.language(), named, locale.territory());
}

} // namespace guide::probe

#pragma once

#include "screens/kit/StyledText.h"
#include "store/TVEntry.h"

#include <QLocale>
#include <QTimeZone>

namespace guide {

/// The texts of show rows, in one locale and zone. Short times are written by the locale's own rule, with the
/// hour in two digits. Main queue.
class ShowRowText {
  public:
    ShowRowText(const QLocale& locale, const QTimeZone& zone);

    /// Start time in the colour, end time, title; `popular` makes no difference here.
    StyledText humanWithColor(const TVEntry& entry, ColorRole color, bool popular) const;
    /// Start time in the colour, title, and a heart when the show is popular.
    StyledText humanCondensedWithColor(const TVEntry& entry, ColorRole color, bool popular) const;

    /// The end time as humanWithColor has it; empty for a show without one.
    StyledText endTime(const TVEntry& entry) const;
    /// The details line; empty when there is none.
    StyledText details(const TVEntry& entry) const;

  private:
    QString shortTime(const std::optional<Moment>& moment) const;

    QLocale m_locale;
    QTimeZone m_zone;
    QString m_timeFormat;
};

} // namespace guide

#pragma once

#include "screens/kit/Row.h"
#include "store/TVEntry.h"

#include <QDate>
#include <QLocale>
#include <QTimeZone>

namespace guide {

/// The texts of show rows in one locale and zone. Times have the locale's short form, with the hour in two
/// digits.
class ShowRowText {
  public:
    ShowRowText(const QLocale& locale, const QTimeZone& zone);

    /// A row with start time, end time and title; `popular` is ignored in this form.
    ShowRow humanWithColor(const TVEntry& entry, ColorRole color, bool popular) const;
    /// A row with start time and title, which may be popular.
    ShowRow humanCondensedWithColor(const TVEntry& entry, ColorRole color, bool popular) const;

    /// Empty for an unset moment.
    QString shortTime(const std::optional<Moment>& moment) const;
    /// The weekday of one of the six days after today, otherwise the date; empty for today.
    QString dayUnlessToday(const QDate& day, const QDate& today) const;

  private:
    QLocale m_locale;
    QTimeZone m_zone;
    QString m_timeFormat;
};

} // namespace guide

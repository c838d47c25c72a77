#include "demo/pages/SiteRequest.h"

#include <QDateTime>

namespace guide {

using namespace Qt::StringLiterals;

QDateTime SiteClock::local(Moment moment) const {
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), m_zone);
}

Moment SiteClock::at(const QDate& date, int hour) const {
    return Moment(std::chrono::milliseconds(QDateTime(date, QTime(hour, 0), m_zone).toMSecsSinceEpoch()));
}

std::vector<Programme> SiteClock::day(const SiteChannel& channel, const QDate& date, int fromHour,
                                      int untilHour) const {
    return channel.programmes(at(date, fromHour), at(date.addDays(1), untilHour));
}

QString escapedMarkup(QString text) {
    return text.replace(u'&', "&amp;"_L1)
        .replace(u'<', "&lt;"_L1)
        .replace(u'>', "&gt;"_L1)
        .replace(u'"', "&quot;"_L1);
}

QString slug(const QString& title) {
    QString slug;
    for (const QChar letter : title.normalized(QString::NormalizationForm_D).toLower()) {
        if ((letter >= u'a' && letter <= u'z') || letter.isDigit()) {
            slug += letter;
        } else if (letter.isSpace() && !slug.endsWith(u'-')) {
            slug += u'-';
        }
    }
    return slug;
}

QString webPage(const QString& language, const QString& title, const QString& content) {
    return uR"(<!DOCTYPE html>
<html lang="%1" class="no-js">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>%2</title>
<link rel="stylesheet" href="/assets/css/site.min.css?v=81">
<script>
document.documentElement.className = document.documentElement.className.replace("no-js", "js");
window.dataLayer = window.dataLayer || [];
if (window.innerWidth < 768 && !window.small) { window.small = true; }
</script>
</head>
<body>
<header id="top">
<a class="brand" href="/"><svg width="96" height="32"><use xlink:href="/assets/sprite.svg#brand"></use></svg></a>
<nav><ul class="menu"><li><a href="/">%2</a></li><li><a href="/kontakt">Kontakt</a></li><li class="search"><form action="/hledani" method="get"><input name="q" value=""></form></li></ul></nav>
</header>
<!-- content -->
%3<!-- /content -->
<footer><p>&copy; %2</p><ul><li><a href="/cookies">Cookies</a></li></ul></footer>
<script src="/assets/js/site.min.js?v=81" async></script>
</body>
</html>
)"_s.arg(language, escapedMarkup(title), content);
}

} // namespace guide

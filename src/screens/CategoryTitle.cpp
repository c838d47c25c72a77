#include "screens/CategoryTitle.h"

#include "screens/Localized.h"
#include "text/categories/CategoryText.h"

namespace guide {

// The titles that textForCategory() gives, for the string table.
[[maybe_unused]] constexpr const char* kTitles[]{
    QT_TRANSLATE_NOOP("Guide", "All Shows"),
    QT_TRANSLATE_NOOP("Guide", "Most Watched"),
    QT_TRANSLATE_NOOP("Guide", "Evening Shows"),
    QT_TRANSLATE_NOOP("Guide", "Feature Films"),
    QT_TRANSLATE_NOOP("Guide", "TV Series"),
    QT_TRANSLATE_NOOP("Guide", "Documentaries"),
    QT_TRANSLATE_NOOP("Guide", "For Children"),
    QT_TRANSLATE_NOOP("Guide", "News"),
    QT_TRANSLATE_NOOP("Guide", "Entertainment"),
    QT_TRANSLATE_NOOP("Guide", "Music"),
    QT_TRANSLATE_NOOP("Guide", "Sports"),
    QT_TRANSLATE_NOOP("Guide", "Movies"),
    QT_TRANSLATE_NOOP("Guide", "Comedies"),
    QT_TRANSLATE_NOOP("Guide", "Adventure"),
    QT_TRANSLATE_NOOP("Guide", "Crime"),
    QT_TRANSLATE_NOOP("Guide", "Westerns"),
    QT_TRANSLATE_NOOP("Guide", "Dramas"),
    QT_TRANSLATE_NOOP("Guide", "Thrillers"),
    QT_TRANSLATE_NOOP("Guide", "SF"),
    QT_TRANSLATE_NOOP("Guide", "Fantasy"),
    QT_TRANSLATE_NOOP("Guide", "Horrors"),
};

QString categoryTitle(TVListingsCategory category) {
    return Localized::tr(textForCategory(category).toLatin1().constData());
}

} // namespace guide

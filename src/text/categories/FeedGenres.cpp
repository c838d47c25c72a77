#include "text/categories/FeedGenres.h"

#include "text/categories/CategoryMapping.h"

namespace guide {

TVListingsCategory feedCategories(const ShowText& show) {
    TVListingsCategory categories = 0;
    for (const QString& category : show.categories) {
        categories |= mapCategoryText(category);
    }
    return categories;
}

} // namespace guide

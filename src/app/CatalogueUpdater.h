#pragma once

#include "core/Catalogue.h"
#include "platform/queues/DispatchQueue.h"

#include <utility>

namespace guide {

/// Calls a block, on the thread that replaces the catalogue, as long as it lives.
class CatalogueUpdater final : public CatalogueObserver {
  public:
    CatalogueUpdater(const Catalogue& catalogue, Block replaced)
        : m_catalogue(catalogue)
        , m_replaced(std::move(replaced)) {
        m_catalogue.addObserver(*this);
    }
    CatalogueUpdater(const CatalogueUpdater&) = delete;
    CatalogueUpdater& operator=(const CatalogueUpdater&) = delete;
    ~CatalogueUpdater() override { m_catalogue.removeObserver(*this); }

    void catalogueReplaced() override { m_replaced(); }

  private:
    const Catalogue& m_catalogue;
    const Block m_replaced;
};

} // namespace guide

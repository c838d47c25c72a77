#pragma once

#include "store/ShowItem.h"

#include <QHash>
#include <QString>

#include <span>
#include <vector>

namespace guide {

/// The shows of a list by their lowercased source titles.
class ShowsByTitle {
  public:
    /// The shows must outlive the object. Those without a title or a start are left out.
    explicit ShowsByTitle(const ShowItems& shows) {
        m_shows.reserve(static_cast<qsizetype>(shows.size()));
        for (const ShowItem& show : shows) {
            const TVEntry& entry = *show.entry();
            if (entry.identificator() && entry.dateTime()) {
                m_shows[entry.lowercasedIdentificator()].push_back(&entry);
            }
        }
    }

    /// In the order of the list.
    std::span<const TVEntry* const> withTitle(const QString& lowercased) const {
        const auto found = m_shows.constFind(lowercased);
        return found == m_shows.cend() ? std::span<const TVEntry* const>() : *found;
    }

  private:
    QHash<QString, std::vector<const TVEntry*>> m_shows;
};

} // namespace guide

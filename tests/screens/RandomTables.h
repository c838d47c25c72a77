#pragma once

#include "screens/kit/Table.h"

#include <QStringList>

#include <algorithm>
#include <random>

namespace guide::test {

using Sections = std::vector<Section>;

inline Row textRow(const QString& section, const QString& name, const QString& title = {}) {
    return {.id = {section, name}, .content = TextRow{.title = title}, .selectable = true};
}

/// A table of some of the sections and rows, in some order, some of them of other kinds and contents.
inline Sections randomSections(std::mt19937& random) {
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    Sections sections;
    QStringList ids = QStringLiteral("A B C D").split(u' ');
    std::shuffle(ids.begin(), below(4) == 0 ? ids.end() : ids.begin(), random);
    for (const QString& id : ids.first(below(5))) {
        Section each{.id = id, .header = QString::number(below(2))};
        QStringList names = QStringLiteral("a b c d e f g h i").split(u' ');
        std::shuffle(names.begin(), below(2) == 0 ? names.end() : names.begin(), random);
        for (const QString& name : names) {
            if (below(4) != 0) {
                each.rows.push_back(textRow(id, name, QString::number(below(2))));
                if (below(8) == 0) {
                    each.rows.back().content = SwitchRow{.title = QString::number(below(2))};
                }
            }
        }
        sections.push_back(std::move(each));
    }
    return sections;
}

} // namespace guide::test

#pragma once

#include <QCoreApplication>

namespace guide {

/// The string table of all user-visible text, keyed by the English text:
/// `Localized::tr("Currently")`.
class Localized {
    Q_DECLARE_TR_FUNCTIONS(Guide)
};

} // namespace guide

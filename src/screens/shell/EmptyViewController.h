#pragma once

#include "screens/kit/TableViewController.h"

namespace guide {

/// A screen without rows that says why it has none.
class EmptyViewController final : public TableViewController {
  public:
    EmptyViewController(QString title, EmptyNote note);
};

} // namespace guide

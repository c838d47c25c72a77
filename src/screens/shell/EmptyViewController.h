#pragma once

#include "screens/kit/ViewController.h"

namespace guide {

/// A screen with a title and no rows, which says why.
class EmptyViewController final : public ViewController {
  public:
    EmptyViewController(QString title, EmptyNote note);
};

} // namespace guide

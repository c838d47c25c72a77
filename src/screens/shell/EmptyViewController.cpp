#include "screens/shell/EmptyViewController.h"

#include <utility>

namespace guide {

EmptyViewController::EmptyViewController(QString title, EmptyNote note) {
    setTitle(std::move(title));
    table().setEmptyNote(std::move(note));
}

} // namespace guide

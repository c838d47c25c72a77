#pragma once

namespace guide {

enum class ContentKind { Table, Player, WebPage, PicturePages };

/// What fills a screen below its bar. ui/ maps each kind to one page.
class Content {
  public:
    Content() = default;
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    virtual ~Content() = default;

    virtual ContentKind kind() const = 0;
};

} // namespace guide

#pragma once

#include "platform/queues/MainBlock.h"
#include "store/ShowItem.h"

#include <QUrl>

#include <memory>
#include <optional>

namespace guide {

/// A show's page on IMDb.
struct IMDbLink {
    QUrl page;
    std::optional<QUrl> picture;
};

/// Looks up what the lists do not say about a show. Called on the main queue, works in the background.
class ShowLookup {
  public:
    virtual ~ShowLookup() = default;

    /// Answers with the show as its page describes it, and stores that; with an empty item when the show has
    /// no page or the page cannot be fetched.
    virtual void netDescriptionFor(const std::shared_ptr<const TVEntry>& entry,
                                   MainBlock<ShowItem> mainBlock) = 0;

    /// Answers only when a page is found.
    virtual void imdbLink(const ShowItem& show, MainBlock<IMDbLink> mainBlock) = 0;
};

/// For a guide that looks up nothing. Never answers.
class NoShowLookup final : public ShowLookup {
  public:
    void netDescriptionFor(const std::shared_ptr<const TVEntry>&, MainBlock<ShowItem>) override {}
    void imdbLink(const ShowItem&, MainBlock<IMDbLink>) override {}
};

} // namespace guide

#include "screens/detail/DetailViewController.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

DetailViewController::DetailViewController(std::shared_ptr<const ScreenEnvironment> environment,
                                           ShowItem show, const QString& channelIconName)
    : m_environment(std::move(environment))
    , m_show(std::move(show))
    , m_channelIconName(channelIconName) {}

void DetailViewController::viewDidLoad() {
    const TVEntry& entry = *m_show.entry();
    setTitle(entry.title().value_or(QString()));
    const SectionId id = u"title"_s;
    table().setSections(
        {{.id = id,
          .rows = {{.id = {id, id},
                    .content = TextRow{.title = entry.title().value_or(QString()),
                                       .subtitle = entry.fullInstantDetails().value_or(QString())}}}}});
}

} // namespace guide

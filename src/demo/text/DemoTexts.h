#pragma once

#include "demo/text/TextGrammar.h"

#include <QStringView>

#include <memory>

namespace guide {

/// The grammars of the demo channels' languages.
class DemoTexts {
  public:
    /// Reads the files of data/demo. Null when one is missing or malformed, with a log line for each error.
    static std::shared_ptr<const DemoTexts> load(const QString& folder);

    /// The grammar of "cs", "sk", "en", "fr", "tr" or "ru"; an empty one for any other language.
    const TextGrammar& grammar(QStringView language) const;

  private:
    QHash<QString, TextGrammar> m_grammars;
};

} // namespace guide

#pragma once

#include "demo/schedule/Programme.h"

#include <QString>

namespace guide {

/// The words that a feed uses for a topic; empty where it has none.
struct TopicWords {
    /// In brackets before the sub-title, in the programme's language ("cs", "sk" or "fr").
    QString bracket;
    /// A Czech category.
    QString category;
    /// The "desc" attribute of an English category, and its text.
    QString attribute;
    QString attributeText;
};

TopicWords topicWords(Topic topic, const QString& language);

} // namespace guide

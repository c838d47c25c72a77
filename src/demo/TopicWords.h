#pragma once

#include "demo/Programme.h"

#include <QString>

namespace guide {

/// What a feed writes of a topic; empty where it has no word.
struct TopicWords {
    /// In brackets before a sub-title, in the language: "cs", "sk" or "fr".
    QString bracket;
    /// As a Czech category.
    QString category;
    /// As the "desc" attribute of an English category, and as its text.
    QString attribute;
    QString attributeText;
};

TopicWords topicWords(Topic topic, const QString& language);

} // namespace guide

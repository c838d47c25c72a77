#pragma once

#include "parsers/FeedMemo.h"
#include "store/ShowItem.h"
#include "text/display/Alphabet.h"

#include <QByteArray>
#include <QLocale>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace guide {

/// The codes of channels, in UTF-8, and the source ids that they make.
using PalinsestoCodes = std::map<std::string, QString, std::less<>>;

/// The texts of shows in the case that the guide gives them. What many shows say alike is worked on once, and
/// shares memory.
class PalinsestoTexts {
  public:
    explicit PalinsestoTexts(QLocale locale)
        : m_locale(std::move(locale)) {}

    QString capitalizedWords(std::string_view text);
    QString sentenceCase(std::string_view text);

  private:
    QLocale m_locale;
    FeedMemo<QString> m_texts;
    /// The words of the texts, each with the blank behind it.
    FeedMemo<QString> m_words;
    FeedMemo<QString> m_sentences;
};

/// The rows of a Palinsesto document in its order, with the bare days and channels among them, which have no
/// title; nothing when it is not well-formed. Rows that carry all as attributes are left out unless their
/// channel is wanted. The entries have no channel.
std::optional<std::vector<ExtendedTVEntry>> palinsestoRows(const QByteArray& document,
                                                           const PalinsestoCodes& wanted,
                                                           const Alphabet& alphabet, PalinsestoTexts& texts);

} // namespace guide

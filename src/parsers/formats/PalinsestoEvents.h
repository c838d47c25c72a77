#pragma once

#include "parsers/xmltv/FeedMemo.h"
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

/// Channel codes in UTF-8 and the source ids made from them.
using PalinsestoCodes = std::map<std::string, QString, std::less<>>;

/// Converts the texts of shows to the case that the guide uses. Repeated texts are converted once and share
/// memory.
class PalinsestoTexts {
  public:
    explicit PalinsestoTexts(const QLocale& locale);

    QString capitalizedWords(std::string_view text);
    QString sentenceCase(std::string_view text);

  private:
    const QLocale m_locale;
    const bool m_hasPlainLetters;
    FeedMemo<QString> m_texts;
    /// The words of the texts, each with the blank after it.
    FeedMemo<QString> m_words;
    FeedMemo<QString> m_sentences;
};

/// The rows of a Palinsesto document in document order, including rows for days and channels, which have no
/// title. Nothing when it is not well-formed. Rows that consist of attributes are left out unless their
/// channel is wanted. The entries have no channel.
std::optional<std::vector<ExtendedTVEntry>> palinsestoRows(const QByteArray& document,
                                                           const PalinsestoCodes& wanted,
                                                           const Alphabet& alphabet, PalinsestoTexts& texts,
                                                           const std::function<bool()>& stopped = {});

} // namespace guide

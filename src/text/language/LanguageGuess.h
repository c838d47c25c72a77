#pragma once

#include <QString>
#include <QStringView>

namespace guide {

/// The language that titles and descriptions are written in, as an ISO 639-1 code: by the script, the letters
/// of single languages and the commonest words. Croatian, Serbian and Bosnian cannot be told apart; of these,
/// and when the text does not decide, `expected` is the answer: the language of the feed's country, or empty.
/// Empty when nothing decides. A few hundred letters are enough.
QString guessedLanguage(QStringView text, const QString& expected = {});

} // namespace guide

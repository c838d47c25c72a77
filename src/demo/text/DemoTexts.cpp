#include "demo/text/DemoTexts.h"

#include <QFile>
#include <QStringDecoder>
#include <QtDebug>

#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMaxFileSize = 1024 * 1024;

// A file's name begins with its language.
constexpr std::array kFiles{"cs-people.txt"_L1,
                            "cs-films.txt"_L1,
                            "cs-series.txt"_L1,
                            "cs-documentaries.txt"_L1,
                            "cs-entertainment.txt"_L1,
                            "sk-films.txt"_L1,
                            "sk-shows.txt"_L1,
                            "en.txt"_L1,
                            "fr.txt"_L1,
                            "tr.txt"_L1,
                            "ru.txt"_L1};

std::optional<QString> readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileSize) {
        return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(file.readAll());
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

} // namespace

std::shared_ptr<const DemoTexts> DemoTexts::load(const QString& folder) {
    const auto texts = std::make_shared<DemoTexts>();
    QStringList errors;
    for (const QLatin1StringView name : kFiles) {
        if (const auto source = readText(folder + u'/' + name)) {
            texts->m_grammars[name.first(2)].add(name, *source);
        } else {
            errors.append(name + u": cannot be read as UTF-8"_s);
        }
    }
    for (const TextGrammar& grammar : std::as_const(texts->m_grammars)) {
        errors += grammar.errors();
    }
    for (const QString& error : std::as_const(errors)) {
        qWarning("demo texts: %s/%s", qUtf8Printable(folder), qUtf8Printable(error));
    }
    return errors.isEmpty() ? texts : nullptr;
}

const TextGrammar& DemoTexts::grammar(QStringView language) const {
    static const TextGrammar empty;
    const auto it = m_grammars.constFind(language.toString());
    return it == m_grammars.constEnd() ? empty : *it;
}

} // namespace guide

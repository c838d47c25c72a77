#include "text/display/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

namespace guide {

using namespace Qt::StringLiterals;

void installTranslations(const QLocale& locale) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    // Only the first language counts: a user who prefers English gets English, not the next language listed.
    const QString name = u"quellin_"_s + QLocale::languageToCode(locale.language());
    if (translator->load(name, u":/translations"_s) ||
        translator->load(u"quellin_en"_s, u":/translations"_s)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace guide

#include "ui/GuideWindow.h"

#include <QCoreApplication>
#include <QTranslator>

namespace guide {

using namespace Qt::StringLiterals;

void installTranslations(const QLocale& locale) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    // By the one language: whoever has set English first is not given a later choice.
    const QString name = u"quellin_"_s + QLocale::languageToCode(locale.language());
    if (translator->load(name, u":/translations"_s)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace guide

#include "ui/GuideWindow.h"

#include <QCoreApplication>
#include <QTranslator>

namespace guide {

using namespace Qt::StringLiterals;

void installTranslations(const QLocale& locale) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, u"quellin"_s, u"_"_s, u":/translations"_s)) {
        QCoreApplication::installTranslator(translator);
    } else {
        delete translator;
    }
}

} // namespace guide

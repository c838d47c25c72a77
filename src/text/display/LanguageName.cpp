#include "text/display/LanguageName.h"

#include <QStringList>

#include <array>
#include <unicode/uloc.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QString& code, const QLocale& locale) {
    std::array<char16_t, 128> buffer;
    UErrorCode status = U_ZERO_ERROR;
    const int length =
        uloc_getDisplayLanguage(code.toLatin1().constData(), locale.name().toLatin1().constData(),
                                buffer.data(), static_cast<int32_t>(buffer.size()), &status);
    if (U_FAILURE(status) || length <= 0 || length > static_cast<int>(buffer.size())) {
        return code;
    }
    QString name(reinterpret_cast<const QChar*>(buffer.data()), length);
    if (name == code) {
        return code;
    }
    name.replace(0, 1, locale.toUpper(name.first(1)));
    return name;
}

} // namespace

QString languageName(const QString& codes, const QLocale& locale) {
    QStringList names;
    const QStringList each = codes.split(u'/', Qt::SkipEmptyParts);
    for (const QString& code : each) {
        names << nameOf(code, locale);
    }
    return names.join(" / "_L1);
}

} // namespace guide

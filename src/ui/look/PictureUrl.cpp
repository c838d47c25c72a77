#include "ui/look/PictureUrl.h"

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr PictureKey::Kind kLastKind = PictureKey::Kind::Initials;

} // namespace

QUrl pictureUrlOf(const PictureKey& key) {
    if (key.empty()) {
        return {};
    }
    // The engine decodes the URL before it passes the id on, so percent-encoding would not protect the name.
    const QByteArray name =
        key.name.toUtf8().toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
    return QUrl("image://"_L1 + kPictureProviderName + u'/' + QString::number(static_cast<int>(key.kind)) +
                u'/' + QLatin1StringView(name));
}

PictureKey pictureKeyOf(const QString& id) {
    const qsizetype slash = id.indexOf(u'/');
    bool isNumber = false;
    const int kind = id.left(slash).toInt(&isNumber);
    if (!isNumber || kind <= static_cast<int>(PictureKey::Kind::None) || kind > static_cast<int>(kLastKind)) {
        return {};
    }
    const QByteArray name = QByteArray::fromBase64(id.sliced(slash + 1).section(u'?', 0, 0).toLatin1(),
                                                   QByteArray::Base64UrlEncoding);
    return {static_cast<PictureKey::Kind>(kind), QString::fromUtf8(name)};
}

} // namespace guide

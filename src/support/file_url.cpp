#include "support/file_url.h"

#include <QByteArray>

namespace kelvo {

QString fileUrl(QStringView path) {
    const QByteArray kept = QByteArrayLiteral("/!$&'()*+,-.:=@_~");
    return QLatin1StringView(path.startsWith(u'/') ? "file://" : "file:") +
           QString::fromLatin1(path.toUtf8().toPercentEncoding(kept));
}

} // namespace kelvo

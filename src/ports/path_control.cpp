#include "ports/path_control.h"

#include "support/plain_line.h"

namespace kelvo {

std::vector<PathControl::Item> pathItemsOf(const QString& url) {
    const QString root = QStringLiteral("file:///");
    if (!url.startsWith(root))
        return {};
    std::vector<PathControl::Item> items{{QStringLiteral("/"), root}};
    QString location = root;
    for (const QString& part : url.mid(root.size()).split(u'/', Qt::SkipEmptyParts)) {
        location += part;
        QString title = QString::fromUtf8(QByteArray::fromPercentEncoding(part.toUtf8()));
        title.replace(u'\n', u' ');
        items.push_back({withVisibleControls(title), location});
        location += u'/';
    }
    return items;
}

} // namespace kelvo

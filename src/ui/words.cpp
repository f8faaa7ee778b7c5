#include "ui/words.h"

#include "support/work_state.h"

#include <QLocale>

#include <algorithm>
#include <limits>

namespace kelvo {

QString Words::counted(const char* one, const char* many, qint64 number) {
    const auto n = static_cast<int>(std::clamp<qint64>(number, 0, std::numeric_limits<int>::max()));
    QString text = tr(many, nullptr, n);
    const QString figure = QLocale().toString(n);
    // English has no catalogue to take its singular from.
    if (n == 1 && text == QString::fromUtf8(many).replace(QStringLiteral("%Ln"), figure))
        return QString::fromUtf8(one).replace(QStringLiteral("%Ln"), figure);
    return text;
}

QString Words::listed(const QStringList& facts) {
    QString all;
    for (const QString& fact : facts)
        all =
            all.isEmpty() ? fact : tr("%1, %2", "two facts, as in: 3 files, 1.2 GB").arg(all, fact);
    return all;
}

QString Words::percent(double share) {
    return tr("%L1 %", "percent").arg(wholePercent(share));
}

} // namespace kelvo

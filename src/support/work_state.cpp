#include "support/work_state.h"

namespace kelvo {

QString progressLine(const WorkState& work) {
    QStringList words{work.step};
    if (work.share)
        words << shareText(*work.share);
    words << work.count << work.amount << work.speed << work.timeLeft << work.file;
    words.removeAll(QString());
    return words.join(QStringLiteral(", "));
}

QString shareText(double share) {
    return QStringLiteral("%1 %").arg(static_cast<int>(share * 100));
}

} // namespace kelvo

#include "adapters/posix/visible_text.h"

#include <algorithm>

namespace kelvo {
namespace {

bool turnsDirection(char16_t unit) {
    return (unit >= 0x202a && unit <= 0x202e) || (unit >= 0x2066 && unit <= 0x2069) ||
           unit == 0x200e || unit == 0x200f || unit == 0x061c;
}

bool needsShowing(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x20)
        return unit != u'\n' && unit != u'\t';
    return (unit >= 0x7f && unit < 0xa0) || turnsDirection(unit);
}

} // namespace

QString withVisibleControls(const QString& text) {
    const auto first = std::find_if(text.cbegin(), text.cend(), needsShowing);
    if (first == text.cend())
        return text;
    QString shown(text.cbegin(), first - text.cbegin());
    for (auto it = first; it != text.cend(); ++it) {
        if (!needsShowing(*it))
            shown += *it;
        else if (it->unicode() < 0x100)
            shown += QStringLiteral("\\x%1").arg(it->unicode(), 2, 16, QLatin1Char('0'));
        else
            shown += QStringLiteral("\\u{%1}").arg(it->unicode(), 4, 16, QLatin1Char('0'));
    }
    return shown;
}

} // namespace kelvo

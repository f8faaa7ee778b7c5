#include "support/profile.h"

#include "support/plain_line.h"

#include <algorithm>
#include <cstdint>

namespace kelvo {
namespace {

constexpr qsizetype cLongestName = 64;

bool mayStandInName(QChar sign) {
    return (sign >= u'a' && sign <= u'z') || (sign >= u'A' && sign <= u'Z') ||
           (sign >= u'0' && sign <= u'9') || sign == u'-' || sign == u'_';
}

} // namespace

QString profileNameFault(QStringView name) {
    if (name.isEmpty())
        return QStringLiteral("it is empty");
    const auto* const odd = std::ranges::find_if_not(name, mayStandInName);
    if (odd != name.end()) {
        const qsizetype length = odd->isHighSurrogate() && odd + 1 != name.end() ? 2 : 1;
        return QStringLiteral("it holds \"%1\"").arg(oneLine(QStringView(odd, length)));
    }
    if (name.size() > cLongestName)
        return QStringLiteral("it is longer than %1 characters").arg(cLongestName);
    return {};
}

QString Profile::within(const QString& folder) const {
    return isNamed() ? QString(folder + u"/profiles/" + name) : folder;
}

QString Profile::title() const {
    return isNamed() ? QString(u"Kelvo Mirror – " + name) : QStringLiteral("Kelvo Mirror");
}

QString Profile::command() const {
    return isNamed() ? QString(u"kelvo-mirror --profile " + name) : QStringLiteral("kelvo-mirror");
}

QString Profile::unit() const {
    return isNamed() ? QString(u"kelvo-mirror@" + name) : QStringLiteral("kelvo-mirror");
}

/// The names of a house's Macs are often the same but for a number: each bit of a name counts for
/// the whole delay.
double Profile::firstPassDelay() const {
    if (!isNamed())
        return 0;
    std::uint64_t mixed = 0xcbf29ce484222325U;
    for (const QChar sign : name)
        mixed = (mixed ^ sign.unicode()) * 0x100000001b3U;
    mixed = (mixed ^ (mixed >> 33)) * 0xff51afd7ed558ccdU;
    mixed ^= mixed >> 33;
    constexpr std::uint64_t cSteps = 1000; // of a second
    return static_cast<double>(mixed % static_cast<std::uint64_t>(cFirstPassSpread * cSteps)) /
           cSteps;
}

} // namespace kelvo

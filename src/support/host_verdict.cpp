#include "support/host_verdict.h"

#include <array>

namespace kelvo {
namespace {

/// In the order of the kinds.
constexpr std::array<QStringView, HostVerdict::OwnWords> cTexts{
    u"", u"valid", u"checkremotehost", u"checkusername", u"checksshkeys", u"unknownerror"};

} // namespace

HostVerdict HostVerdict::fromText(const QString& text) {
    for (std::size_t kind = 0; kind < cTexts.size(); ++kind) {
        if (text == cTexts[kind])
            return static_cast<Kind>(kind);
    }
    HostVerdict verdict(OwnWords);
    verdict.fOwnWords = text;
    return verdict;
}

QString HostVerdict::text() const {
    return fKind == OwnWords ? fOwnWords : cTexts[fKind].toString();
}

} // namespace kelvo

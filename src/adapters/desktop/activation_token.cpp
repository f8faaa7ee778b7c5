#include "adapters/desktop/activation_token.h"

#include <QtGlobal>

namespace kelvo {
namespace {

constexpr const char* cToken = "XDG_ACTIVATION_TOKEN";
constexpr const char* cStartupId = "DESKTOP_STARTUP_ID"; // its name on X11

} // namespace

QByteArray activationToken() {
    const QByteArray token = qgetenv(cToken);
    return token.isEmpty() ? qgetenv(cStartupId) : token;
}

void offerActivationToken(const QByteArray& token) {
    qunsetenv(cStartupId);
    if (token.isEmpty())
        qunsetenv(cToken);
    else
        qputenv(cToken, token);
}

} // namespace kelvo

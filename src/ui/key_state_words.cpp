#include "ui/key_state_words.h"

namespace kelvo {

QString keyStateWords(KeyState state) {
    switch (state) {
    case KeyState::NoKey:
        return QStringLiteral("No key yet. Set one up to be let in by the remote Mac.");
    case KeyState::HostUnset:
        return QStringLiteral("Key made. Fill in host name and user to have it accepted.");
    case KeyState::NotAsked:
        return QStringLiteral("Key made. The remote Mac has not been asked yet.");
    case KeyState::Asking:
        return QStringLiteral("Asking the remote Mac…");
    case KeyState::Accepted:
        return QStringLiteral("Key accepted by the remote Mac.");
    case KeyState::NotAccepted:
        return QStringLiteral("Key made, not accepted by the remote Mac yet.");
    case KeyState::HostAway:
        return QStringLiteral("Key made. The remote Mac is not on the network right now.");
    }
    return {};
}

} // namespace kelvo

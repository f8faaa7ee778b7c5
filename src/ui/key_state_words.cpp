#include "ui/key_state_words.h"

#include "ui/words.h"

namespace kelvo {

QString keyStateWords(KeyState state) {
    switch (state) {
    case KeyState::NoKey:
        return Words::tr("No key yet. Set one up to be let in by the remote Mac.");
    case KeyState::HostUnset:
        return Words::tr("Key made. Fill in host name and user to have it accepted.");
    case KeyState::NotAsked:
        return Words::tr("Key made. The remote Mac has not been asked yet.");
    case KeyState::Asking:
        return Words::tr("Asking the remote Mac…");
    case KeyState::Accepted:
        return Words::tr("Key accepted by the remote Mac.");
    case KeyState::NotAccepted:
        return Words::tr("Key made, not accepted by the remote Mac yet.");
    case KeyState::HostAway:
        return Words::tr("Key made. The remote Mac is not on the network right now.");
    }
    return {};
}

} // namespace kelvo

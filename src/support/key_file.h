// The program's own private key, kept apart from the user's other ssh keys.
#pragma once

#include <QStringView>

namespace kelvo {

inline constexpr QStringView cPrivateKeyFile = u"~/.ssh/id_kelvoRsync";

} // namespace kelvo

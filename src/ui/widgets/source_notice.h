// What the window says when passes pull from another source than the fields name.
#pragma once

#include <QString>

namespace kelvo {

class UserDefaults;

/// One line for people; empty while passes pull from what the fields say.
QString sourceNotice(const UserDefaults& defaults);

/// Whether passes could pull from what the fields say, and pull from elsewhere.
bool sourceMayBeUsed(const UserDefaults& defaults);

} // namespace kelvo

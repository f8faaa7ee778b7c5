// LoginItemSetting: what the box "Start Kelvo Mirror when I log in" shows, and what is said under
// it.
#pragma once

#include <QString>

namespace kelvo {

class LoginItem;

/// Main thread only.
class LoginItemSetting {
public:
    struct Shown {
        bool checked = false;
        bool enabled = true; ///< false where something of somebody else's is in the way
        QString trouble;     ///< empty when there is none
    };

    /// `item` outlives the setting.
    explicit LoginItemSetting(LoginItem& item) : fItem(item) {}

    /// The entry as it is now.
    Shown look() const;

    /// Switches it; shows what is true afterwards, also when that is not what was asked for.
    Shown choose(bool on);

private:
    LoginItem& fItem;
};

} // namespace kelvo

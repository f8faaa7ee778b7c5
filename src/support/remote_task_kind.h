// RemoteTaskKind: what a person has set going on the remote side, as the window shows it.
#pragma once

namespace kelvo {

enum class RemoteTaskKind {
    None,          ///< nothing runs
    OpeningFolder, ///< the remote folder, by way of its share
    SettingUpKey,
    MakingKey,
    Ending, ///< cancelled, and not yet over
};

} // namespace kelvo

// The user's folders for what lives only as long as programs run.
#pragma once

#include "ports/temporary_folder.h"

#include <string>

namespace kelvo {

struct RuntimeFolder {
    std::string path;  ///< without a closing "/"; empty when there is none
    std::string fault; ///< why, in words
};

/// $XDG_RUNTIME_DIR when it is a folder that the user owns and nobody else may enter or write, else
/// "kelvo-mirror-<user id>" in $TMPDIR or /tmp, made with mode 0700 when missing and refused when
/// it is anybody else's, open to others, or a link. Touches only local folders. Any thread.
RuntimeFolder runtimeFolder();

/// "kelvo-mirror" in $XDG_RUNTIME_DIR or "kelvo-mirror-<user id>" in $TMPDIR or /tmp, by the same
/// rules as above.
class UserTemporaryFolder final : public TemporaryFolder {
public:
    FolderOrFault temporaryFolder() const override;
};

} // namespace kelvo

// SshConfiguration: whether ssh knows of the connection that passes share, and the one line that
// tells it.
#pragma once

#include <QString>

namespace kelvo {

/// Operations are short and block as long as the file system does; any thread, one at a time.
class SshConfiguration {
public:
    virtual ~SshConfiguration() = default;

    enum class Knows {
        ByTheMachine, ///< its configuration, which is not ours to change, tells all its users
        ByTheLine,    ///< the user's own configuration holds the line
        NotYet,
    };

    /// Read anew at each call; what cannot be read does not tell ssh.
    virtual Knows knows() const = 0;

    virtual QString file() const = 0; ///< the user's own configuration, as a whole path
    virtual QString line() const = 0;

    /// Puts the line at the top of the file, or takes it away; everything else in it stays byte for
    /// byte, its mode too, and a link to it stays a link. A file that is missing is made for the
    /// user alone. Returns why it could not be done, in words; empty when it is.
    virtual QString setLine(bool there) = 0;
};

} // namespace kelvo

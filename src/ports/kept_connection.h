// KeptConnection: a connection to the Mac, logged in once, which the ssh of several commands
// shares.
#pragma once

#include <QByteArray>
#include <QString>

namespace kelvo {

/// A command whose environment holds this variable, with the folder of a connection, goes through
/// that connection where it asks for the same account; every other logs in itself.
inline constexpr const char* cControlVariable = "KELVO_MIRROR_CONTROL";

struct LoginTarget {
    QString destination; ///< user@host
    QString keyPath;     ///< of the private key

    bool operator==(const LoginTarget&) const = default;
};

class KeptConnection {
public:
    virtual ~KeptConnection() = default;

    /// Begins to log in; a connection that was there is closed. Returns at once, tells of no
    /// failure, and asks nobody for anything. It ends with the program, however that ends. Any
    /// thread.
    virtual void open(const LoginTarget& target) = 0;

    /// The value of cControlVariable with which a command goes through the connection. Waits up to
    /// `patience` seconds for a login that is under way. Empty while there is no connection: it was
    /// not opened, could not be, has broken since, or no longer fits, because the key file was
    /// changed or this machine's network addresses are others. One that the Mac stopped answering
    /// may be taken for a connection for about 15 s. Any thread.
    virtual QByteArray folder(double patience) = 0;

    /// Whether the connection that was opened last has stood, be it gone by now. Any thread.
    virtual bool hasStood() const = 0;

    /// Ends the connection, and with it the commands that go through it. Returns at once; any
    /// thread. Without one nothing happens.
    virtual void close() = 0;
};

} // namespace kelvo

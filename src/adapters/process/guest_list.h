// GuestList: who is connected to the running copy's socket.
#pragma once

#include "adapters/system/unique_fd.h"
#include "ports/guests.h"
#include "ports/single_copy.h"

#include <QByteArray>
#include <QObject>

#include <sys/un.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

class QSocketNotifier;

namespace kelvo {

/// Main thread only; needs its event loop. A guest whose line begins with "{" is handed to the
/// host; one that asks a copy to show itself, as later copies do, is served here. All others are
/// shown out unheard, and so are other users.
class GuestList final : public Guests {
public:
    explicit GuestList(SingleCopy::Show show);

    /// Takes the socket's name away.
    ~GuestList() override;
    GuestList(const GuestList&) = delete;
    GuestList& operator=(const GuestList&) = delete;

    /// Begins to listen, with mode 0600 from the first moment; whoever bound the name before loses
    /// it. False when that cannot be done; errno says why.
    bool listen(const sockaddr_un& address);

    void receive(Host host) override { fHost = std::move(host); }
    bool say(Id guest, const QByteArray& line, const QByteArray& farewell) override;
    void dismiss(Id guest) override;

private:
    struct Guest {
        Id id = 0;
        UniqueFd socket;
        std::unique_ptr<QSocketNotifier> readable;
        std::unique_ptr<QSocketNotifier> writable;
        QByteArray said;
        bool spoke = false;           ///< has said its line
        bool leaves = false;          ///< goes when nothing waits any more
        std::deque<QByteArray> lines; ///< that wait
        qsizetype waiting = 0;        ///< bytes of them
        qsizetype sent = 0;           ///< bytes of the first
    };

    void letIn();
    void makeRoom();
    void hear(Id id);
    void serveLaterCopy(Guest& guest, const QByteArray& token);
    void write(Id id);
    bool writeSome(Guest& guest);
    Guest* find(Id id);
    void remove(Id id);
    void leave(Id id);

    SingleCopy::Show fShow;
    Host fHost;
    UniqueFd fSocket;
    std::string fPath;
    QObject fContext;
    std::unique_ptr<QSocketNotifier> fComing;
    std::vector<std::unique_ptr<Guest>> fGuests; ///< oldest first
    Id fLast = 0;
};

} // namespace kelvo

#include "adapters/process/ssh_connection.h"

#include "adapters/process/socket_folder.h"
#include "adapters/system/interface_addresses.h"
#include "ports/command_runner.h"
#include "ports/dispatch_queue.h"
#include "support/shell_words.h"

#include <QFile>

#include <sys/stat.h>

#include <arpa/inet.h>
#include <chrono>
#include <net/if.h>
#include <set>

namespace kelvo {
namespace {

/// ssh names a socket by 40 signs and lets it grow up beside its place, with 17 more.
constexpr std::size_t cSocketName = 57;

/// The connection begins once ssh would use it, and prints a line when it listens. A Mac that keeps
/// silent for 15 s is given up.
const QString cMasterCommand = QStringLiteral(
    "key=\"%@1\"; mac=\"%@2\"; "
    "case $(/usr/bin/ssh -G -i \"$key\" -- \"$mac\" 2>/dev/null | head -c 99999) in "
    "*\"controlpath $KELVO_MIRROR_CONTROL/\"*) ;; *) exit 1;; esac; "
    "with=; [ ! -x /usr/bin/setpriv ] || with='/usr/bin/setpriv --pdeathsig TERM'; "
    "exec $with /usr/bin/ssh -M -N -T -a -x -i \"$key\" -o BatchMode=yes -o ConnectTimeout=3 "
    "-o ServerAliveInterval=5 -o ServerAliveCountMax=2 -o ControlPersist=no "
    "-o ClearAllForwardings=yes -o RemoteCommand=none -o PermitLocalCommand=yes "
    "-o LocalCommand=echo -- \"$mac\" 2>/dev/null");

/// The addresses of this machine beyond the loopback.
std::set<std::string> addresses() {
    std::set<std::string> all;
    const InterfaceAddresses list;
    for (const ifaddrs* entry = list.first(); entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || (entry->ifa_flags & IFF_LOOPBACK) != 0)
            continue;
        char text[INET6_ADDRSTRLEN] = "";
        const void* bytes = nullptr;
        if (entry->ifa_addr->sa_family == AF_INET)
            bytes = &reinterpret_cast<const sockaddr_in*>(entry->ifa_addr)->sin_addr;
        else if (entry->ifa_addr->sa_family == AF_INET6)
            bytes = &reinterpret_cast<const sockaddr_in6*>(entry->ifa_addr)->sin6_addr;
        if (bytes && ::inet_ntop(entry->ifa_addr->sa_family, bytes, text, sizeof text))
            all.insert(text);
    }
    return all;
}

/// A text that is another once the key file or the network's addresses are others.
std::string surroundings(const std::string& keyPath) {
    struct stat key {};
    std::string text;
    if (::stat(keyPath.c_str(), &key) == 0)
        text = std::to_string(key.st_ino) + ' ' + std::to_string(key.st_size) + ' ' +
               std::to_string(key.st_mtim.tv_sec) + ' ' + std::to_string(key.st_mtim.tv_nsec);
    for (const std::string& address : addresses())
        text += ' ' + address;
    return text;
}

} // namespace

SshConnection::SshConnection(CommandRunner& commands, BackgroundQueue& bgQueue)
    : fCommands(commands), fBgQueue(bgQueue) {}

SshConnection::~SshConnection() = default;

void SshConnection::open(const LoginTarget& target) {
    std::uint64_t number = 0;
    {
        const std::lock_guard lock(fMutex);
        closeLocked();
        number = fNumber;
        fStage = Stage::LoggingIn;
        fHasStood = false;
        fKeyPath = QFile::encodeName(target.keyPath).toStdString();
        fSurroundings = surroundings(fKeyPath);
    }
    fBgQueue.async([this, number, target] { run(number, target); });
}

/// Blocks as long as the connection stands.
void SshConnection::run(std::uint64_t number, const LoginTarget& target) {
    const SocketFolder folder(cSocketName);
    const auto text = withFillings(cMasterCommand, {{QStringLiteral("%@1"), target.keyPath},
                                                    {QStringLiteral("%@2"), target.destination}});
    if (!folder.path().empty() && text)
        (void)fCommands.run(
            {.text = *text,
             .bounds = cShortAnswer,
             .received =
                 [&](QByteArrayView) {
                     const std::lock_guard lock(fMutex);
                     if (number != fNumber)
                         return;
                     fStage = Stage::Open;
                     fHasStood = true;
                     fFolder = folder.path();
                     fChanged.notify_all();
                 },
             .started =
                 [&](CommandId id) {
                     const std::lock_guard lock(fMutex);
                     if (number == fNumber)
                         fCommand = id;
                     else
                         fCommands.cancel(id);
                 },
             .variables = {{cControlVariable, QByteArray::fromStdString(folder.path())}}});
    const std::lock_guard lock(fMutex);
    if (number != fNumber)
        return;
    fCommand.reset();
    fStage = Stage::Closed;
    fChanged.notify_all();
}

QByteArray SshConnection::folder(double patience) {
    std::unique_lock lock(fMutex);
    fChanged.wait_for(lock, std::chrono::duration<double>(patience),
                      [this] { return fStage != Stage::LoggingIn; });
    if (fStage == Stage::Open && surroundings(fKeyPath) != fSurroundings)
        closeLocked();
    return fStage == Stage::Open ? QByteArray::fromStdString(fFolder) : QByteArray();
}

bool SshConnection::hasStood() const {
    const std::lock_guard lock(fMutex);
    return fHasStood;
}

void SshConnection::close() {
    const std::lock_guard lock(fMutex);
    closeLocked();
}

void SshConnection::closeLocked() {
    ++fNumber;
    fStage = Stage::Closed;
    if (fCommand)
        fCommands.cancel(*fCommand);
    fCommand.reset();
    fChanged.notify_all();
}

} // namespace kelvo

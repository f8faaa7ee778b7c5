#include "adapters/system/file_trust.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstring>

namespace kelvo {
namespace {

/// Whether `group` is the one that many systems make for each user, under the user's name.
bool isOfThisUserAlone(gid_t group) {
    std::array<char, 4096> userRoom{};
    std::array<char, 4096> groupRoom{};
    passwd user{};
    struct group own {};
    passwd* userFound = nullptr;
    struct group* groupFound = nullptr;
    (void)::getpwuid_r(::geteuid(), &user, userRoom.data(), userRoom.size(), &userFound);
    (void)::getgrgid_r(group, &own, groupRoom.data(), groupRoom.size(), &groupFound);
    if (!userFound || !groupFound)
        return false;
    if (user.pw_gid != group || std::strcmp(user.pw_name, own.gr_name) != 0)
        return false;
    for (char** member = own.gr_mem; *member; ++member) {
        if (std::strcmp(*member, user.pw_name) != 0)
            return false;
    }
    return true;
}

} // namespace

QString foreignWriters(const struct stat& entry) {
    if (entry.st_uid != ::geteuid() && entry.st_uid != 0)
        return QStringLiteral("it belongs to another user");
    const bool byGroup = (entry.st_mode & S_IWGRP) != 0 && !isOfThisUserAlone(entry.st_gid);
    if (byGroup || (entry.st_mode & S_IWOTH) != 0)
        return QStringLiteral("it can be written by other users");
    return {};
}

} // namespace kelvo

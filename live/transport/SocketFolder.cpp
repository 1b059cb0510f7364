// SPDX-License-Identifier: MIT
#include "SocketFolder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace scopix::live
{

namespace
{

std::string runtimeFolder()
{
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    return folder && folder[0] == '/' ? std::string(folder) + "/scopix-live" : std::string();
}

std::string temporaryFolder()
{
    return "/tmp/scopix-live-" + std::to_string(geteuid());
}

std::string problemOf(const struct stat& folder, uid_t user)
{
    if (!S_ISDIR(folder.st_mode))
        return "it is no folder; remove it";
    if (folder.st_uid != user)
        return "it belongs to another user; ask that user to remove it";
    if ((folder.st_mode & 0077) != 0)
        return "others than its user can enter it; give it the mode 0700";
    return {};
}

// Empty where the folder is as it has to be.
std::string problemAt(const std::string& path, uid_t user)
{
    struct stat folder {
    };
    if (lstat(path.c_str(), &folder) != 0)
        return std::strerror(errno);
    return problemOf(folder, user);
}

} // namespace

SocketFolder checkedFolder(const std::string& path, uid_t user)
{
    std::string reason;
    if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST)
        reason = std::strerror(errno);
    else
        reason = problemAt(path, user);
    if (reason.empty())
        return {path, {}};
    return {path, "Inspectors cannot attach to this program, since “" + path +
                      "” cannot hold its socket: " + reason + "."};
}

SocketFolder ownSocketFolder()
{
    const std::string runtime = runtimeFolder();
    if (!runtime.empty()) {
        SocketFolder folder = checkedFolder(runtime, geteuid());
        if (folder.problem.empty())
            return folder;
    }
    return checkedFolder(temporaryFolder(), geteuid());
}

std::vector<std::string> socketFolders()
{
    std::vector<std::string> folders;
    for (const std::string& folder : {runtimeFolder(), temporaryFolder()})
        if (!folder.empty() && problemAt(folder, geteuid()).empty())
            folders.push_back(folder);
    return folders;
}

bool mayTalk(uid_t peer, uid_t own) noexcept
{
    return peer == own;
}

} // namespace scopix::live

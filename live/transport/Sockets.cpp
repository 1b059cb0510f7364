// SPDX-License-Identifier: MIT
#include "Sockets.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace scopix::live
{

namespace
{

namespace fs = std::filesystem;

FileDescriptor newSocket()
{
    return FileDescriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

std::optional<sockaddr_un> addressOf(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    return address;
}

bool listenAt(const FileDescriptor& socket, const std::string& path)
{
    const auto address = addressOf(path);
    if (!socket || !address)
        return false;
    unlink(path.c_str()); // of a program of the same number that is gone
    return bind(socket.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 &&
           listen(socket.number(), 16) == 0;
}

std::string nextName()
{
    static std::atomic<unsigned> count{0};
    return std::to_string(getpid()) + '-' + std::to_string(++count) + ".sock";
}

// A name begins with a dot until its socket listens.
bool isOfDeadProcess(const std::string& name)
{
    const long pid = std::strtol(name.c_str() + 1, nullptr, 10);
    return pid > 0 && kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH;
}

bool isStale(const fs::path& path)
{
    const std::string name = path.filename().string();
    if (name[0] == '.')
        return isOfDeadProcess(name);
    return !connectTo(path.string()) && errno == ECONNREFUSED;
}

} // namespace

// What listens gets its name when it does: a name whose socket refuses is always one that is left over.
Listening listenIn(const std::string& folder)
{
    const std::string name = nextName();
    const std::string unfinished = folder + "/." + name;
    const std::string path = folder + '/' + name;
    Listening listening{newSocket(), path, {}};
    if (listenAt(listening.socket, unfinished) && rename(unfinished.c_str(), path.c_str()) == 0)
        return listening;
    const std::string reason = std::strerror(errno);
    unlink(unfinished.c_str());
    return {FileDescriptor(),
            {},
            "Inspectors cannot attach to this program, since it cannot listen at “" + path + "”: " + reason +
                "."};
}

FileDescriptor connectTo(const std::string& path)
{
    FileDescriptor socket = newSocket();
    const auto address = addressOf(path);
    if (!socket || !address)
        return FileDescriptor();
    if (connect(socket.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0)
        return FileDescriptor();
    return socket;
}

std::optional<uid_t> peerUser(const FileDescriptor& socket)
{
    ucred credentials{};
    socklen_t size = sizeof credentials;
    if (getsockopt(socket.number(), SOL_SOCKET, SO_PEERCRED, &credentials, &size) != 0)
        return std::nullopt;
    return credentials.uid;
}

void clearStaleSockets(const std::string& folder)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_socket(ignored) && isStale(entry->path()))
            unlink(entry->path().c_str());
    }
}

} // namespace scopix::live

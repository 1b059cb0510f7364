// SPDX-License-Identifier: MIT
// Unix sockets that never block and no child process inherits.
#pragma once

#include "FileDescriptor.h"

#include <optional>
#include <string>

#include <sys/types.h>

namespace scopix::live
{

struct Listening {
    FileDescriptor socket;
    std::string path;
    std::string problem; // a sentence; empty where it listens
};

/// Listens in the folder, under a name that only this process has.
Listening listenIn(const std::string& folder);

/// None where nobody listens there; errno says why: ECONNREFUSED where a program has ended without removing
/// its socket.
FileDescriptor connectTo(const std::string& path);

/// Who is at the other end.
std::optional<uid_t> peerUser(const FileDescriptor& socket);

/// Removes sockets from the folder whose program is gone, as one that was killed leaves them.
void clearStaleSockets(const std::string& folder);

} // namespace scopix::live

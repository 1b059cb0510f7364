// SPDX-License-Identifier: MIT
// Where the sockets of running programs are: `scopix-live` in the user's runtime directory, or a folder of
// the user's own in /tmp where there is none. Only the user can enter it.
#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

namespace scopix::live
{

struct SocketFolder {
    std::string path;
    std::string problem; // a sentence; empty where the folder is there and only `user` can enter it
};

/// Makes the folder where it is missing. One that is a link, or others own or can enter, is refused.
SocketFolder checkedFolder(const std::string& path, uid_t user);

/// The folder for new sockets, made where it is missing.
SocketFolder ownSocketFolder();

/// Every folder in which sockets of this user may be, as far as they are there and safe to look into.
std::vector<std::string> socketFolders();

/// Whether a program of the one user may be inspected by the other.
bool mayTalk(uid_t peer, uid_t own) noexcept;

} // namespace scopix::live

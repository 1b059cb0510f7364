// SPDX-License-Identifier: MIT
#include "Client.h"
#include "Handshake.h"

#include <scopix/live/transport/SocketFolder.h>

#include <algorithm>
#include <filesystem>
#include <tuple>

#include <unistd.h>

namespace scopix::live
{

namespace
{

namespace fs = std::filesystem;

std::vector<std::string> socketsIn(const std::string& folder)
{
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (entry->is_socket(ignored) && entry->path().filename().string()[0] != '.')
            paths.push_back(entry->path().string());
    }
    return paths;
}

// All of them at once, so that several programs that are stopped cost no more time than one.
std::vector<Handshake> openHandshakes()
{
    std::vector<Handshake> handshakes;
    for (const std::string& folder : socketFolders()) {
        for (const std::string& path : socketsIn(folder)) {
            Handshake handshake(path);
            if (handshake.isStale())
                unlink(path.c_str());
            else if (handshake.isWaiting())
                handshakes.push_back(std::move(handshake));
        }
    }
    return handshakes;
}

} // namespace

std::vector<Program> listPrograms(std::chrono::milliseconds patience)
{
    std::vector<Handshake> handshakes = openHandshakes();
    Handshake::waitForAll(handshakes, patience);
    std::vector<Program> programs;
    for (const Handshake& handshake : handshakes)
        if (handshake.isGreeted())
            programs.push_back(handshake.program());
    std::sort(programs.begin(), programs.end(), [](const Program& a, const Program& b) {
        return std::tie(a.name, a.pid) < std::tie(b.name, b.pid);
    });
    return programs;
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#include "Contents.h"

#include "Messages.h"

#include <unistd.h>

namespace scopix::live
{

namespace
{

constexpr std::array<char, 8> Magic = {'S', 'c', 'o', 'p', 'i', 'x', 'L', '\n'};

} // namespace

bool Greeting::isOurs() const noexcept
{
    return magic == Magic;
}

Greeting Greeting::ofThisProcess(const std::string& name, const std::string& sceneGraph)
{
    return {Magic, ProtocolVersion, getpid(), name, sceneGraph};
}

} // namespace scopix::live

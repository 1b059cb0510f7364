// SPDX-License-Identifier: MIT
#include "Probe.h"

#include <scopix/live/client/SentenceOfProgram.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include <poll.h>
#include <unistd.h>

using namespace scopix::live;
using namespace std::chrono_literals;

OwnRuntimeFolder::OwnRuntimeFolder()
{
    const char* former = std::getenv("XDG_RUNTIME_DIR");
    m_hadFormer = former != nullptr;
    m_former = former ? former : "";
    std::string name = "/tmp/scopix-test-XXXXXX";
    m_path = mkdtemp(name.data());
    setenv("XDG_RUNTIME_DIR", m_path.c_str(), 1);
}

OwnRuntimeFolder::~OwnRuntimeFolder()
{
    std::filesystem::remove_all(m_path);
    if (m_hadFormer)
        setenv("XDG_RUNTIME_DIR", m_former.c_str(), 1);
    else
        unsetenv("XDG_RUNTIME_DIR");
}

std::vector<Program> ownPrograms()
{
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    const std::string start = std::string(folder ? folder : "") + '/';
    std::vector<Program> programs = listPrograms(20s);
    const auto isElsewhere = [&](const Program& each) { return each.socketPath.rfind(start, 0) != 0; };
    programs.erase(std::remove_if(programs.begin(), programs.end(), isElsewhere), programs.end());
    return programs;
}

bool isKnown(const std::string& words)
{
    return sentenceOfProgram(words).source() != nullptr;
}

bool Probe::runUntil(const std::function<bool()>& condition)
{
    const auto patience = std::chrono::steady_clock::now() + 60s;
    while (!condition()) {
        if (!client.isConnected() || std::chrono::steady_clock::now() > patience)
            return condition();
        if (m_step)
            m_step();
        client.process();
        if (condition())
            return true;
        pollfd file{client.fileDescriptor(), static_cast<short>(POLLIN | (client.wantsWrite() ? POLLOUT : 0)),
                    0};
        poll(&file, 1, 1);
    }
    return true;
}

std::vector<NodeInfo> Probe::roots()
{
    return ask<std::vector<NodeInfo>>(&Client::roots);
}

std::vector<NodeInfo> Probe::children(NodeId node)
{
    return ask<std::vector<NodeInfo>>(&Client::children, node, 0, Client::mostChildren);
}

std::vector<PropertyInfo> Probe::properties(NodeId node)
{
    return ask<std::vector<PropertyInfo>>(&Client::properties, node);
}

std::optional<Value> Probe::value(NodeId node, const std::string& property)
{
    return ask<std::optional<Value>>(&Client::value, node, property);
}

WriteResult Probe::write(NodeId node, const std::string& property, const Value& value)
{
    return ask<WriteResult>(&Client::write, node, property, value);
}

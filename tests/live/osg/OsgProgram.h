// SPDX-License-Identifier: MIT
// A program on OpenSceneGraph that the tests attach to, and what they ask it again and again.
#pragma once

#include "live/Probe.h"

#include <memory>
#include <set>

/// Runs a command with the preloaded library, and finds its socket.
class OsgProgram
{
public:
    /// `environment`: NAME=VALUE for the program alone.
    explicit OsgProgram(const std::string& command, const std::string& environment = {}, bool preload = true);

    /// Debian's osgviewer with the scene of the tests.
    static std::unique_ptr<OsgProgram> viewer(const std::string& environment = {});
    /// Our own program, with these options.
    static std::unique_ptr<OsgProgram> own(const std::string& options, bool preload = true);

    /// Its socket, once it is there; empty where it never is.
    std::string waitForSocket();
    OtherProgram& process() { return m_process; }

private:
    OtherProgram m_process;
};

/// A folder of sockets, and a probe that is attached to one program.
class OsgTest : public ::testing::Test
{
protected:
    void attach(OsgProgram& program) { EXPECT_EQ(probe.client.connect(program.waitForSocket()), ""); }

    OwnRuntimeFolder folder;
    Probe probe;
};

/// The node with a name, found by asking the program; 0 where there is none.
scopix::live::NodeId nodeNamed(Probe& probe, const std::string& name);
/// The only object that a property of a node holds.
scopix::live::NodeId objectIn(Probe& probe, scopix::live::NodeId node, const std::string& property,
                              std::size_t index = 0);

using Snapshot = std::map<std::pair<scopix::live::NodeId, std::string>, scopix::live::Value>;
/// Every value of every object below the scene's root, whose own cameras move by themselves.
Snapshot snapshotOf(Probe& probe, scopix::live::NodeId root);

/// The value with something else in it, of the same type; the same one where there is nothing else that is
/// safe.
scopix::live::Value changed(const scopix::live::PropertyInfo& info, const scopix::live::Value& value,
                            unsigned seed);

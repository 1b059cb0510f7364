// SPDX-License-Identifier: MIT
// An inspector at programs that are of another version, hostile or damaged.
#include "RawPeer.h"
#include "live/Probe.h"

#include <scopix/live/transport/SocketFolder.h>
#include <scopix/live/transport/Sockets.h>

#include <gtest/gtest.h>

#include <thread>

#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/uio.h>

using namespace scopix::live;

namespace
{

/// A program that says whatever a test likes: the bytes go out as soon as somebody connects.
class FakeProgram
{
public:
    explicit FakeProgram(Bytes bytes)
        : m_listening(listenIn(ownSocketFolder().path))
        , m_thread([this, bytes = std::move(bytes)] { speak(bytes); })
    {
    }
    ~FakeProgram() { m_thread.join(); }
    const std::string& path() const { return m_listening.path; }

private:
    void speak(const Bytes& bytes)
    {
        pollfd file{m_listening.socket.number(), POLLIN, 0};
        poll(&file, 1, 60000);
        RawPeer peer(FileDescriptor(accept(m_listening.socket.number(), nullptr, nullptr)), {});
        peer.send(bytes);
        while (peer.isOpen())
            peer.read();
    }

    Listening m_listening;
    std::thread m_thread;
};

Bytes introducedAs(std::uint32_t version)
{
    Introduction introduction{Greeting::ofThisProcess("fake", "Fake 1"), {}, {}};
    introduction.greeting.version = version;
    return packedMessage(MessageType::Hello, 0, introduction);
}

Bytes operator+(Bytes a, const Bytes& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::string problemWith(const Bytes& bytes)
{
    const OwnRuntimeFolder folder;
    const FakeProgram program(bytes);
    Probe probe;
    return probe.client.connect(program.path());
}

// Why the connection ended after the program had said this, and a question had been asked.
std::string endAfter(const Bytes& bytes)
{
    const OwnRuntimeFolder folder;
    const FakeProgram program(introducedAs(ProtocolVersion) + bytes);
    Probe probe;
    EXPECT_EQ(probe.client.connect(program.path()), "");
    probe.client.roots({});
    probe.runUntil([&] { return !probe.end.empty(); });
    return probe.end;
}

const char* const NotUnderstood =
    "The program “fake” sent a message that this inspector does not understand; detached.";

} // namespace

TEST(Versions, ThatDifferAreNamed)
{
    EXPECT_EQ(problemWith(introducedAs(7)), "Cannot attach to “fake”: it speaks version 7 of the protocol "
                                            "and this inspector version 2; use libraries and "
                                            "an inspector of the same version.");
    // Whatever follows the greeting there.
    Bytes later = packedMessage(MessageType::Hello, 0, Greeting{Greeting::ofThisProcess("fake", "Fake 9")},
                                Text("and more"));
    later[HeadSize + 8] = 9;
    EXPECT_NE(problemWith(later).find("it speaks version 9"), std::string::npos);
}

TEST(Versions, AreListed)
{
    const OwnRuntimeFolder folder;
    const FakeProgram program(introducedAs(7));
    const std::vector<Program> programs = ownPrograms();
    ASSERT_EQ(programs.size(), 1U);
    EXPECT_EQ(programs[0].name, "fake");
    EXPECT_EQ(programs[0].protocolVersion, 7U);
}

TEST(Programs, ThatAreNoneAreNotAttachedTo)
{
    const std::string end = "”: what listens there is no program that can be inspected.";
    for (const Bytes& bytes : {Bytes(100, 'x'), Bytes(100, 0), packedMessage(MessageType::Roots, 0)}) {
        const std::string problem = problemWith(bytes);
        EXPECT_EQ(problem.substr(problem.size() - std::min(problem.size(), end.size())), end) << problem;
    }
    Bytes damaged = introducedAs(ProtocolVersion);
    damaged.pop_back();
    damaged[0] = static_cast<std::uint8_t>(damaged[0] - 1);
    EXPECT_NE(problemWith(damaged).find("its greeting is damaged"), std::string::npos);
}

TEST(Programs, ThatSayGoodbyeAreQuoted)
{
    EXPECT_EQ(problemWith(packedMessage(MessageType::Goodbye, 0, Text("Not today."))), "Not today.");
    EXPECT_EQ(endAfter(packedMessage(MessageType::Goodbye, 0, Text("That was it."))), "That was it.");
}

TEST(Programs, ThatSpeakNonsenseAreLeft)
{
    EXPECT_EQ(endAfter(packedMessage(MessageType::ValueChanged, 0, NodeId(1))), NotUnderstood);
    EXPECT_EQ(endAfter(packedMessage(MessageType::Roots, 1, std::uint32_t(1000000))), NotUnderstood);
    EXPECT_EQ(endAfter(packedMessage(MessageType::Roots, 5, std::uint32_t(0))), NotUnderstood)
        << "nobody asked that";
    EXPECT_EQ(endAfter(packedMessage(MessageType::Node, 1, false)), NotUnderstood) << "nor that";
    EXPECT_EQ(endAfter(packedMessage(MessageType::Write, 0)), NotUnderstood);
    EXPECT_EQ(endAfter(Bytes{255, 255, 255, 255, 16, 0, 0, 0, 1, 0, 0, 0}),
              "The program “fake” sent a message that is too long or damaged; detached.");
}

// Its size is said, its memory is missing.
TEST(Programs, ThatPromisePicturesAreNotBelieved)
{
    const OwnRuntimeFolder folder;
    const FakeProgram program(introducedAs(ProtocolVersion) +
                              packedMessage(MessageType::PictureCame, 0, Number(4000), Number(4000)) +
                              packedMessage(MessageType::Roots, 1, std::uint32_t(0)));
    Probe probe;
    ASSERT_EQ(probe.client.connect(program.path()), "");
    bool answered = false;
    probe.client.roots([&](const std::vector<NodeInfo>&) { answered = true; });
    EXPECT_TRUE(probe.runUntil([&] { return answered; }));
    EXPECT_TRUE(probe.pictures.empty());
}

TEST(Answers, MayEndTheClient)
{
    const OwnRuntimeFolder folder;
    const FakeProgram program(introducedAs(ProtocolVersion) +
                              packedMessage(MessageType::Roots, 1, std::uint32_t(0)) +
                              packedMessage(MessageType::Roots, 2, std::uint32_t(0)));
    ClientListener listener;
    auto client = std::make_unique<Client>(listener);
    ASSERT_EQ(client->connect(program.path()), "");
    int answers = 0;
    for (int i = 0; i < 2; ++i)
        client->roots([&](const std::vector<NodeInfo>&) {
            ++answers;
            client.reset();
        });
    while (client)
        client->process();
    EXPECT_EQ(answers, 1);
}

// SPDX-License-Identifier: MIT
// Who may connect, and what becomes of inspectors that are slow; stale sockets and folders that others can
// enter.
#include "RawPeer.h"
#include "live/Probe.h"

#include <scopix/live/server/Connections.h>
#include <scopix/live/transport/SharedPicture.h>
#include <scopix/live/transport/SocketFolder.h>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <pwd.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace scopix::live;
using namespace std::chrono_literals;

namespace
{

namespace fs = std::filesystem;

Introduction introduction()
{
    return {Greeting::ofThisProcess("toy", "Toy 1"), {}, {}};
}

Connections::Patience little()
{
    return {50ms, 50ms, 50ms};
}

// A socket whose program is gone.
std::string leaveSocket(const OwnRuntimeFolder& folder)
{
    std::string path;
    {
        const Listening listening = listenIn(folder.sockets());
        path = listening.path;
    }
    EXPECT_TRUE(fs::exists(path));
    return path;
}

const ChildAct isTurnedAwayAsNobody("isTurnedAwayAsNobody", [](const ChildAct::Words& words) {
    const passwd* nobody = getpwnam("nobody");
    if (setgid(nobody->pw_gid) != 0 || setuid(nobody->pw_uid) != 0)
        return false;
    RawPeer stranger(words[0], {});
    return stranger.awaitGoodbye() == "The program “toy” belongs to another user; inspect it as that user.";
});

} // namespace

TEST(Users, MayTalkToTheirOwnProgramsOnly)
{
    EXPECT_TRUE(mayTalk(1000, 1000));
    EXPECT_FALSE(mayTalk(1001, 1000));
    EXPECT_FALSE(mayTalk(0, 1000));
    EXPECT_FALSE(mayTalk(1000, 0));
}

// Where the test runs as root another user really tries; what decides is tested above.
TEST(Users, AreTurnedAwayEvenWhereTheFolderLetsThemIn)
{
    if (geteuid() != 0)
        return;
    ASSERT_NE(getpwnam("nobody"), nullptr);
    const OwnRuntimeFolder folder;
    const Connections connections(introduction(), Connections::Patience());
    for (const std::string& path : {folder.path(), folder.sockets(), connections.path()})
        ASSERT_EQ(chmod(path.c_str(), 0777), 0);
    EXPECT_TRUE(isTurnedAwayAsNobody.isDone({connections.path()}));
}

TEST(Folder, IsRefusedWhereOthersCanEnterIt)
{
    const OwnRuntimeFolder folder;
    const std::string path = folder.path() + "/open";
    EXPECT_EQ(checkedFolder(path, geteuid()).problem, "");
    ASSERT_EQ(chmod(path.c_str(), 0755), 0);
    EXPECT_EQ(checkedFolder(path, geteuid()).problem,
              "Inspectors cannot attach to this program, since “" + path +
                  "” cannot hold its socket: others than its user can enter it; give it the mode 0700.");
    ASSERT_EQ(chmod(path.c_str(), 0700), 0);
    EXPECT_NE(checkedFolder(path, geteuid() + 1).problem.find("belongs to another user"), std::string::npos);
    const std::string link = folder.path() + "/link";
    fs::create_symlink(path, link);
    EXPECT_NE(checkedFolder(link, geteuid()).problem.find("it is no folder"), std::string::npos);
}

TEST(Folder, IsOneOfTheUsersOwnWhereThereIsNoRuntimeDirectory)
{
    const OwnRuntimeFolder folder;
    unsetenv("XDG_RUNTIME_DIR");
    const SocketFolder own = ownSocketFolder();
    EXPECT_EQ(own.path, "/tmp/scopix-live-" + std::to_string(geteuid()));
    EXPECT_EQ(own.problem, "");
    setenv("XDG_RUNTIME_DIR", "relative", 1);
    EXPECT_EQ(ownSocketFolder().path, own.path);
}

TEST(Folder, MayHaveANameThatIsTooLongForSockets)
{
    const OwnRuntimeFolder folder;
    const std::string deep = folder.path() + "/" + std::string(120, 'x');
    fs::create_directory(deep);
    setenv("XDG_RUNTIME_DIR", deep.c_str(), 1);
    const Connections connections(introduction(), Connections::Patience());
    EXPECT_NE(connections.problem(), "");
    EXPECT_EQ(connections.path(), "");
}

// As in a program that forks and goes on without another program.
TEST(Folder, KeepsTheSocketWhenAForkedChildEndsTheServer)
{
    const OwnRuntimeFolder folder;
    auto connections = std::make_unique<Connections>(introduction(), Connections::Patience());
    const std::string path = connections->path();
    ProcessCopy copy(60s, [&] {
        connections.reset();
        return fs::exists(path);
    });
    EXPECT_TRUE(copy.waitForEnd().isGood());
    EXPECT_EQ(ownPrograms().size(), 1U);
    connections.reset();
    EXPECT_FALSE(fs::exists(path));
}

TEST(StaleSockets, AreClearedByThoseWhoComeNext)
{
    const OwnRuntimeFolder folder;
    ASSERT_EQ(ownSocketFolder().problem, "");
    const std::string first = leaveSocket(folder);
    EXPECT_TRUE(ownPrograms().empty());
    EXPECT_FALSE(fs::exists(first));
    const std::string second = leaveSocket(folder);
    const Connections connections(introduction(), Connections::Patience());
    EXPECT_FALSE(fs::exists(second));
    EXPECT_EQ(ownPrograms().size(), 1U);
}

TEST(StaleSockets, AreSaidToHaveNobodyBehind)
{
    const OwnRuntimeFolder folder;
    ASSERT_EQ(ownSocketFolder().problem, "");
    const std::string path = leaveSocket(folder);
    Probe probe;
    EXPECT_EQ(probe.client.connect(path),
              "Cannot attach to “" + path + "”: no program listens there any more.");
}

TEST(SlowInspectors, AreDetachedWhenTheyDoNotGreet)
{
    const OwnRuntimeFolder folder;
    const Connections connections(introduction(), little());
    RawPeer silent(connections.path(), {});
    EXPECT_EQ(silent.awaitGoodbye(), "The inspector did not greet the program in time.");
}

TEST(SlowInspectors, AreDetachedWhenTheyTakeNothing)
{
    const OwnRuntimeFolder folder;
    Connections connections(introduction(), little());
    RawPeer stalled(connections.path(), {});
    stalled.greet();
    std::vector<std::shared_ptr<Peer>> peers;
    while (peers.empty())
        peers = connections.takeNew(false);
    peers[0]->send({Bytes(std::size_t(4) << 20), std::nullopt});
    while (!peers[0]->isGone())
        std::this_thread::yield();
    while (stalled.isOpen())
        stalled.read();
    EXPECT_FALSE(stalled.isOpen());
}

TEST(WaitingMessages, AreBounded)
{
    Peer peer(std::make_shared<Wakeup>());
    int many = 0;
    for (; peer.hasRoomForQuestions(); ++many)
        peer.addQuestion({1, 1, {}});
    EXPECT_EQ(many, 4096);
    while (peer.takeQuestion())
        --many;
    EXPECT_EQ(many, 0);
    std::size_t bytes = 0;
    for (; peer.hasRoomForQuestions(); bytes += 1 << 20)
        peer.addQuestion({1, 1, Bytes(1 << 20)});
    EXPECT_EQ(bytes, std::size_t(16) << 20);
    // Whoever reads no answers gets none any more, until they are read.
    peer.send({Bytes(std::size_t(9) << 20), std::nullopt});
    EXPECT_FALSE(peer.takeQuestion());
    EXPECT_FALSE(peer.isIdle());
    EXPECT_EQ(peer.takeAnswers().size(), 1U);
    EXPECT_FALSE(peer.takeQuestion()) << "it was not sent yet";
    peer.setUnsentBytes(0);
    EXPECT_TRUE(peer.takeQuestion());
}

TEST(SharedPictures, AreReadFromSealedMemoryOnly)
{
    const Picture picture{2, 2, Bytes(16, 7)};
    const FileDescriptor memory = sharedPixels(picture);
    ASSERT_TRUE(memory);
    EXPECT_EQ(pictureIn(memory, 2, 2).value_or(Picture()).pixels, picture.pixels);
    EXPECT_FALSE(pictureIn(memory, 3, 2)) << "larger than the memory";
    EXPECT_FALSE(pictureIn(memory, 0, 2));
    EXPECT_FALSE(pictureIn(memory, 100000, 100000));
    EXPECT_FALSE(pictureIn(FileDescriptor(), 2, 2));
    const FileDescriptor unsealed(memfd_create("unsealed", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    ASSERT_EQ(ftruncate(unsealed.number(), 16), 0);
    EXPECT_FALSE(pictureIn(unsealed, 2, 2)) << "it could shrink while it is read";
    EXPECT_FALSE(sharedPixels({2, 2, Bytes(15)}));
}

// SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"
#include "support/ChildProcess.h"

#include <xsg/support/FileReplacement.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using xsg::FileReplacement;

namespace
{

using Names = std::vector<std::string>;

std::string replace(const std::string& path, const std::string& text)
{
    FileReplacement file(path);
    return file.open() && file.write(text) && file.commit() ? std::string() : file.getProblem().getText();
}

class Replacement : public InTemporaryFolder
{
protected:
    // A temporary file of the one named, as a program that was killed leaves it.
    std::string leave(const std::string& name) const { return make(name + ".scopix-q1w2e3", "half"); }
};

TEST_F(Replacement, IsRefusedForTheEndingsOfOtherKinds)
{
    const std::vector<std::string> endings{"csv", "txt"};
    EXPECT_FALSE(xsg::isOfAnotherKind(at("list.CSV"), endings));
    EXPECT_TRUE(xsg::isOfAnotherKind(at("list.png"), endings));
    EXPECT_TRUE(xsg::isOfAnotherKind(at("list"), endings));
    std::filesystem::create_symlink(make("data", ""), at("plain.txt"));
    std::filesystem::create_symlink(make("picture.png", ""), at("link.txt"));
    EXPECT_FALSE(xsg::isOfAnotherKind(at("plain.txt"), endings)) << "what it leads to has no ending";
    EXPECT_TRUE(xsg::isOfAnotherKind(at("link.txt"), endings));
}

TEST_F(Replacement, IsTheOldFileUntilItIsTheNewOne)
{
    make("a", "old");
    FileReplacement file(at("a"));
    ASSERT_TRUE(file.open());
    ASSERT_TRUE(file.write("new"));
    EXPECT_EQ(textOf(at("a")), "old");
    ASSERT_TRUE(file.commit());
    EXPECT_EQ(textOf(at("a")), "new");
    EXPECT_EQ(names(), Names{"a"});
}

TEST_F(Replacement, ThatIsNotCommittedLeavesNothing)
{
    {
        FileReplacement file(at("a"));
        ASSERT_TRUE(file.open());
        ASSERT_TRUE(file.write("new"));
    }
    EXPECT_EQ(names(), Names{});
}

TEST_F(Replacement, GivesANewFileTheModeOfTheUmask)
{
    const mode_t before = umask(027);
    EXPECT_EQ(replace(at("a"), "new"), "");
    umask(before);
    EXPECT_EQ(modeOf(at("a")), mode_t{0640});
}

TEST_F(Replacement, KeepsTheModeAndIsNotReadableMeanwhile)
{
    make("a", "old");
    chmod(at("a").c_str(), 0640);
    FileReplacement file(at("a"));
    ASSERT_TRUE(file.open());
    for (const std::string& name : names())
        EXPECT_EQ(modeOf(at(name)), name == "a" ? mode_t{0640} : mode_t{0600});
    ASSERT_TRUE(file.commit());
    EXPECT_EQ(modeOf(at("a")), mode_t{0640});
}

TEST_F(Replacement, KeepsOwnerAndGroup)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gives files away";
    make("a", "old");
    ASSERT_EQ(chown(at("a").c_str(), 1234, 2345), 0);
    EXPECT_EQ(replace(at("a"), "new"), "");
    struct stat about {
    };
    stat(at("a").c_str(), &about);
    EXPECT_EQ(about.st_uid, 1234U);
    EXPECT_EQ(about.st_gid, 2345U);
}

TEST_F(Replacement, FollowsLinksAndKeepsThem)
{
    std::filesystem::create_directory(at("folder"));
    make("folder/a", "old");
    std::filesystem::create_symlink("folder/b", at("outer"));
    std::filesystem::create_symlink("a", at("folder/b"));
    EXPECT_EQ(replace(at("outer"), "new"), "");
    EXPECT_EQ(textOf(at("folder/a")), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(at("outer")));
    EXPECT_TRUE(std::filesystem::is_symlink(at("folder/b")));
}

TEST_F(Replacement, MakesWhatALinkLeadsTo)
{
    std::filesystem::create_symlink("a", at("link"));
    EXPECT_EQ(replace(at("link"), "new"), "");
    EXPECT_EQ(textOf(at("a")), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(at("link")));
}

TEST_F(Replacement, RefusesLinksThatLeadNowhere)
{
    std::filesystem::create_symlink("a", at("b"));
    std::filesystem::create_symlink("b", at("a"));
    EXPECT_EQ(replace(at("a"), "new"), strerrordesc_np(ELOOP));
    EXPECT_EQ(names(), (Names{"a", "b"}));
}

TEST_F(Replacement, LeavesTheOldContentToOtherHardLinks)
{
    make("a", "old");
    std::filesystem::create_hard_link(at("a"), at("copy"));
    EXPECT_EQ(replace(at("a"), "new"), "");
    EXPECT_EQ(textOf(at("a")), "new");
    EXPECT_EQ(textOf(at("copy")), "old");
}

TEST_F(Replacement, RefusesAProtectedFileEvenToRoot)
{
    make("a", "old");
    chmod(at("a").c_str(), 0444);
    EXPECT_EQ(replace(at("a"), "new"), "the file is write-protected");
    EXPECT_EQ(textOf(at("a")), "old");
}

TEST_F(Replacement, RefusesWhatIsNoRegularFile)
{
    EXPECT_EQ(replace(folder, "new"), "it is a folder");
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0666), 0);
    EXPECT_EQ(replace(at("pipe"), "new"), "it is no regular file");
    // One of its own, since a mistake would replace it.
    if (mknod(at("device").c_str(), S_IFCHR | 0600, makedev(1, 7)) == 0) {
        EXPECT_EQ(replace(at("device"), "new"), "it is no regular file");
        EXPECT_FALSE(std::filesystem::is_regular_file(at("device")));
        std::filesystem::remove(at("device"));
    }
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    at("socket").copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(replace(at("socket"), "new"), "it is no regular file");
    close(server);
    EXPECT_EQ(names(), (Names{"pipe", "socket"}));
}

TEST_F(Replacement, SaysWhyThereIsNoFile)
{
    EXPECT_EQ(replace(at("missing/a"), "new"), strerrordesc_np(ENOENT));
}

TEST_F(Replacement, RemovesWhatAKilledProgramLeftOfTheSameFile)
{
    leave("a");
    leave("b");
    make("a.scopix-notours", "kept");
    make("a.scopix-Q1W2E3", "kept");
    EXPECT_EQ(replace(at("a"), "new"), "");
    EXPECT_EQ(names(), (Names{"a", "a.scopix-Q1W2E3", "a.scopix-notours", "b.scopix-q1w2e3"}));
}

TEST_F(Replacement, LeavesTheTemporaryFileOfARunningProgramAlone)
{
    FileReplacement other(at("a"));
    ASSERT_TRUE(other.open());
    ASSERT_TRUE(other.write("theirs"));
    EXPECT_EQ(replace(at("a"), "ours"), "");
    EXPECT_EQ(names().size(), 2U);
    ASSERT_TRUE(other.commit());
    EXPECT_EQ(textOf(at("a")), "theirs");
    EXPECT_EQ(names(), Names{"a"});
}

TEST_F(Replacement, RemovesNothingThatOnlyLooksAbandoned)
{
    make("elsewhere", "kept");
    std::filesystem::create_symlink("elsewhere", at("a.scopix-q1w2e3"));
    ASSERT_EQ(mkfifo(at("a.scopix-q1w2e4").c_str(), 0666), 0);
    EXPECT_EQ(replace(at("a"), "new"), "");
    EXPECT_EQ(names(), (Names{"a", "a.scopix-q1w2e3", "a.scopix-q1w2e4", "elsewhere"}));
}

TEST_F(Replacement, OfALongNameWorks)
{
    const std::string name(250, 'n');
    EXPECT_EQ(replace(at(name), "new"), "");
    EXPECT_EQ(names(), Names{name});
}

const ChildAct dieInTheMiddle("dieInTheMiddle", [](const ChildAct::Words& words) {
    FileReplacement file(words[0]);
    return file.open() && file.write("new") && raise(SIGKILL) == 0;
});

TEST_F(Replacement, ThatIsKilledLeavesTheOldFileAndIsCleared)
{
    make("a", "old");
    ASSERT_EQ(ChildProcess(dieInTheMiddle.command({at("a")})).waitForEnd().signal, SIGKILL);
    EXPECT_EQ(textOf(at("a")), "old");
    EXPECT_EQ(names().size(), 2U);
    EXPECT_EQ(replace(at("a"), "newer"), "");
    EXPECT_EQ(names(), Names{"a"});
}

// A limit on the size of files stands for a full disk.
const ChildAct replaceWithoutRoom("replaceWithoutRoom", [](const ChildAct::Words& words) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    return replace(words[0], std::string(5000, 'x')) == strerrordesc_np(EFBIG);
});

TEST_F(Replacement, ThatHasNoRoomLeavesTheOldFile)
{
    make("a", "old");
    EXPECT_TRUE(replaceWithoutRoom.isDone({at("a")}));
    EXPECT_EQ(textOf(at("a")), "old");
    EXPECT_EQ(names(), Names{"a"});
}

} // namespace

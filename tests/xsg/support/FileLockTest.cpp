// SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"
#include "support/ChildProcess.h"

#include <xsg/support/FileLock.h>

#include <algorithm>
#include <csignal>

#include <unistd.h>

using xsg::FileLock;
using Kind = FileLock::Kind;

namespace
{

constexpr std::chrono::milliseconds AtOnce{0};

class Lock : public InTemporaryFolder
{
};

TEST_F(Lock, KeepsOthersOffUntilItIsReleased)
{
    {
        const FileLock lock(at("a"), Kind::Exclusive);
        EXPECT_FALSE(lock.isBusy());
        EXPECT_TRUE(FileLock(at("a"), Kind::Exclusive, AtOnce).isBusy());
        EXPECT_TRUE(FileLock(at("a"), Kind::Shared, AtOnce).isBusy());
    }
    EXPECT_FALSE(FileLock(at("a"), Kind::Exclusive, AtOnce).isBusy());
}

TEST_F(Lock, LetsSeveralRead)
{
    make("a", "text");
    const FileLock lock(at("a"), Kind::Shared);
    EXPECT_FALSE(FileLock(at("a"), Kind::Shared, AtOnce).isBusy());
    EXPECT_TRUE(FileLock(at("a"), Kind::Exclusive, AtOnce).isBusy());
}

const ChildAct lockAndDie("lockAndDie", [](const ChildAct::Words& words) {
    const FileLock lock(words[0], Kind::Exclusive);
    return raise(SIGKILL) == 0;
});

TEST_F(Lock, IsGoneWithAProgramThatWasKilled)
{
    EXPECT_EQ(ChildProcess(lockAndDie.command({at("a")})).waitForEnd().signal, SIGKILL);
    EXPECT_FALSE(FileLock(at("a"), Kind::Exclusive, AtOnce).isBusy());
}

// Who holds the lock of a file that is not there any more holds nothing that others ask for.
TEST_F(Lock, IsThatOfTheFileThatIsThereNow)
{
    const FileLock before(at("a"), Kind::Exclusive);
    std::filesystem::rename(make("b", "new"), at("a"));
    EXPECT_FALSE(FileLock(at("a"), Kind::Exclusive, AtOnce).isBusy());
}

TEST_F(Lock, OfWhatCannotBeLockedIsNotBusy)
{
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0666), 0);
    EXPECT_FALSE(FileLock(at("pipe"), Kind::Exclusive).isBusy());
    EXPECT_FALSE(FileLock(at("missing/a"), Kind::Exclusive).isBusy());
    EXPECT_FALSE(FileLock(at("missing"), Kind::Shared).isBusy());
    EXPECT_EQ(names(), std::vector<std::string>{"pipe"});
}

} // namespace

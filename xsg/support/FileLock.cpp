// SPDX-License-Identifier: MIT
#include <xsg/support/FileLock.h>

#include <xsg/support/SpecialFile.h>

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr std::chrono::milliseconds Step{2};

// False where the file was replaced by another of its name while its lock was waited for.
bool isStillAt(const std::string& path, int descriptor)
{
    struct stat locked {
    };
    struct stat present {
    };
    return fstat(descriptor, &locked) == 0 && stat(path.c_str(), &present) == 0 &&
           locked.st_dev == present.st_dev && locked.st_ino == present.st_ino;
}

} // namespace

xsg::FileLock::FileLock(const std::string& path, Kind kind, std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    Attempt attempt = tryOnce(path, kind);
    while (attempt == Attempt::Elsewhere || attempt == Attempt::Outdated) {
        m_isBusy = std::chrono::steady_clock::now() >= end;
        if (m_isBusy)
            return;
        std::this_thread::sleep_for(Step);
        attempt = tryOnce(path, kind);
    }
}

xsg::FileLock::~FileLock()
{
    release();
}

xsg::FileLock::Attempt xsg::FileLock::tryOnce(const std::string& path, Kind kind)
{
    if (isSpecialFile(path))
        return Attempt::Impossible;
    const int flags = kind == Kind::Exclusive ? O_RDONLY | O_CREAT : O_RDONLY;
    m_descriptor = open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC, 0666);
    if (m_descriptor < 0)
        return errno == EINTR ? Attempt::Outdated : Attempt::Impossible;
    if (flock(m_descriptor, (kind == Kind::Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0) {
        if (isStillAt(path, m_descriptor))
            return Attempt::Held;
        release();
        return Attempt::Outdated;
    }
    const int code = errno;
    release();
    return code == EWOULDBLOCK ? Attempt::Elsewhere : code == EINTR ? Attempt::Outdated : Attempt::Impossible;
}

void xsg::FileLock::release()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
}

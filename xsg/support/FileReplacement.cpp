// SPDX-License-Identifier: MIT
#include <xsg/support/FileReplacement.h>

#include <xsg/support/SystemReason.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <random>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int MostLinks = 40;
constexpr int MostTries = 100;
constexpr std::size_t LongestName = 200; // with what comes behind it, within what a file system takes
constexpr std::string_view Mark = ".scopix-";
constexpr std::size_t RandomLength = 6;
constexpr std::string_view RandomCharacters = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr mode_t AnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

template <class Call>
auto untilUninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

// In lower case, without the point.
std::string endingOf(const std::string& path)
{
    const std::string name = nameOf(path);
    const std::size_t point = name.rfind('.');
    std::string ending = point == std::string::npos ? std::string() : name.substr(point + 1);
    for (char& c : ending)
        c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    return ending;
}

// What the names of a file's temporary files begin with.
std::string temporaryPrefix(const std::string& path)
{
    return nameOf(path).substr(0, LongestName).append(Mark);
}

std::string randomText()
{
    static thread_local std::minstd_rand random(static_cast<unsigned>(
        std::chrono::steady_clock::now().time_since_epoch().count() ^ (std::int64_t{getpid()} << 16)));
    std::uniform_int_distribution<std::size_t> index(0, RandomCharacters.size() - 1);
    std::string text;
    for (std::size_t i = 0; i < RandomLength; ++i)
        text += RandomCharacters[index(random)];
    return text;
}

bool isTemporaryName(std::string_view name, std::string_view prefix)
{
    return name.size() == prefix.size() + RandomLength && name.substr(0, prefix.size()) == prefix &&
           name.find_first_not_of(RandomCharacters, prefix.size()) == std::string_view::npos;
}

int openFile(const std::string& path, int flags, mode_t mode = 0)
{
    return untilUninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); });
}

// The lock that a running program would hold is free.
void removeIfAbandoned(const std::string& path)
{
    const int descriptor = openFile(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW);
    if (descriptor < 0)
        return;
    struct stat about {
    };
    if (fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode) && about.st_uid == geteuid() &&
        flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        unlink(path.c_str());
    close(descriptor);
}

void removeAbandoned(const std::string& path)
{
    const std::string folder = folderOf(path);
    const std::string prefix = temporaryPrefix(path);
    DIR* entries = opendir(folder.c_str());
    if (!entries)
        return;
    while (const dirent* entry = readdir(entries)) {
        if (isTemporaryName(entry->d_name, prefix))
            removeIfAbandoned(folder + '/' + entry->d_name);
    }
    closedir(entries);
}

// Not every file system can do that.
bool isOnDisk(int descriptor)
{
    return untilUninterrupted([&] { return fsync(descriptor); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// So that the new name is on the disk too. The file is whole, whether that works or not.
void syncFolder(const std::string& path)
{
    const int folder = openFile(folderOf(path), O_RDONLY | O_DIRECTORY);
    if (folder < 0)
        return;
    isOnDisk(folder);
    close(folder);
}

} // namespace

bool xsg::isOfAnotherKind(const std::string& path, const std::vector<std::string>& endings)
{
    const auto isOne = [&endings](const std::string& ending) {
        return std::find(endings.begin(), endings.end(), ending) != endings.end();
    };
    const std::string target = followLinks(path);
    const std::string ending = endingOf(target);
    return !isOne(endingOf(path)) || (target != path && !ending.empty() && !isOne(ending));
}

SbSentence xsg::reasonAgainstReplacing(const std::string& path)
{
    struct stat about {
    };
    if (stat(path.c_str(), &about) != 0)
        return {};
    if (S_ISDIR(about.st_mode))
        return SbSentence("it is a folder");
    if (!S_ISREG(about.st_mode))
        return SbSentence("it is no regular file");
    // Root may write to every file; one without write permission is still protected on purpose.
    if ((about.st_mode & AnyWrite) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return SbSentence("the file is write-protected");
    return {};
}

std::string xsg::followLinks(const std::string& path)
{
    std::filesystem::path at(path);
    std::error_code error;
    for (int links = 0; links < MostLinks && std::filesystem::is_symlink(at, error); ++links) {
        const std::filesystem::path next = std::filesystem::read_symlink(at, error);
        at = next.is_absolute() ? next : at.parent_path() / next;
    }
    return at.string();
}

xsg::FileReplacement::FileReplacement(const std::string& path)
    : m_target(followLinks(path))
{
}

xsg::FileReplacement::~FileReplacement()
{
    discard();
}

bool xsg::FileReplacement::open()
{
    m_problem = reasonAgainstReplacing(m_target);
    if (!m_problem.empty())
        return false;
    removeAbandoned(m_target);
    return makeTemporary();
}

bool xsg::FileReplacement::makeTemporary()
{
    const std::string prefix = folderOf(m_target) + '/' + temporaryPrefix(m_target);
    struct stat about {
    };
    // What nobody else may read is not readable for a moment either.
    const mode_t mode = stat(m_target.c_str(), &about) == 0 ? S_IRUSR | S_IWUSR : 0666U;
    for (int tries = 0; tries < MostTries; ++tries) {
        std::string name = prefix + randomText();
        m_descriptor = openFile(name, O_WRONLY | O_CREAT | O_EXCL, mode);
        if (m_descriptor < 0 && errno == EEXIST)
            continue;
        if (m_descriptor < 0)
            return fail(errno);
        m_temporary = std::move(name);
        if (isOurs())
            return true;
        discard();
    }
    return fail(EEXIST);
}

// Between its creation and its lock, another program may have taken it for an abandoned one.
bool xsg::FileReplacement::isOurs() const
{
    if (untilUninterrupted([&] { return flock(m_descriptor, LOCK_EX | LOCK_NB); }) != 0)
        return errno != EWOULDBLOCK; // else the file system has no locks
    struct stat about {
    };
    return fstat(m_descriptor, &about) == 0 && about.st_nlink > 0;
}

bool xsg::FileReplacement::write(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count =
            untilUninterrupted([&] { return ::write(m_descriptor, text.data(), text.size()); });
        if (count <= 0)
            return fail(count < 0 ? errno : EIO);
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool xsg::FileReplacement::keepOwnerAndMode()
{
    struct stat before {
    };
    struct stat now {
    };
    if (stat(m_target.c_str(), &before) != 0)
        return errno == ENOENT;
    if (fstat(m_descriptor, &now) != 0)
        return false;
    mode_t mode = before.st_mode & 07777U;
    const bool isSame = now.st_uid == before.st_uid && now.st_gid == before.st_gid;
    if (!isSame && fchown(m_descriptor, before.st_uid, before.st_gid) != 0) {
        mode &= 01777U; // its rights were another owner's
        // What its group may do is no business of another group.
        if (now.st_gid != before.st_gid && fchown(m_descriptor, static_cast<uid_t>(-1), before.st_gid) != 0)
            mode = (mode & ~mode_t{070}) | ((mode & 07U) << 3U);
    }
    return fchmod(m_descriptor, mode) == 0;
}

bool xsg::FileReplacement::commit()
{
    if (!isOnDisk(m_descriptor) || !keepOwnerAndMode() ||
        untilUninterrupted([&] { return std::rename(m_temporary.c_str(), m_target.c_str()); }) != 0)
        return fail(errno);
    m_temporary.clear();
    syncFolder(m_target);
    discard();
    return true;
}

bool xsg::FileReplacement::fail(int code)
{
    m_problem = systemReason(code);
    discard();
    return false;
}

void xsg::FileReplacement::discard()
{
    if (!m_temporary.empty())
        unlink(m_temporary.c_str());
    m_temporary.clear();
    if (m_descriptor >= 0)
        close(m_descriptor);
    m_descriptor = -1;
}

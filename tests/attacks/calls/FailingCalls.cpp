// SPDX-License-Identifier: MIT
#include "FailingCalls.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

using failing::Call;
using failing::Fault;

namespace
{

std::atomic<bool> s_isSet{false};
Fault s_fault;
std::array<std::atomic<int>, failing::CallCount> s_counts{};

enum class Verdict { Passes, Fails, Halves };

Verdict next(Call call)
{
    if (!s_isSet)
        return Verdict::Passes;
    const int count = ++s_counts[call];
    if (call != s_fault.call || (s_fault.stays ? count < s_fault.nth : count != s_fault.nth))
        return Verdict::Passes;
    if (s_fault.error == 0)
        return Verdict::Halves;
    errno = s_fault.error;
    return Verdict::Fails;
}

// The files below this folder, or all where there is none.
const char* s_folder = nullptr;

// What the machine tells of itself is no file on a disk.
bool isMeant(const char* path)
{
    if (s_folder)
        return std::strncmp(path, s_folder, std::strlen(s_folder)) == 0;
    return std::strncmp(path, "/proc/", 6) != 0 && std::strncmp(path, "/sys/", 5) != 0 &&
           std::strncmp(path, "/dev/", 5) != 0;
}

bool isMeant(int descriptor)
{
    if (!s_folder)
        return true;
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    return readlink(link.c_str(), path.data(), path.size() - 1) > 0 && isMeant(path.data());
}

bool isFile(int descriptor)
{
    struct stat about {
    };
    const int before = errno;
    const bool isRegular = fstat(descriptor, &about) == 0 && S_ISREG(about.st_mode) && isMeant(descriptor);
    errno = before;
    return isRegular;
}

Verdict next(Call call, int descriptor)
{
    return s_isSet && isFile(descriptor) ? next(call) : Verdict::Passes;
}

Verdict nextFor(Call call, const char* path)
{
    return s_isSet && isMeant(path) ? next(call) : Verdict::Passes;
}

Verdict nextOpen(const char* path)
{
    return nextFor(failing::Open, path);
}

template <class Function>
Function real(const char* name, Function)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::size_t halved(Verdict verdict, std::size_t size)
{
    return verdict == Verdict::Halves && size > 1 ? size / 2 : size;
}

const struct {
    const char* name;
    Call call;
} Names[] = {{"open", failing::Open},  {"read", failing::Read},     {"write", failing::Write},
             {"fsync", failing::Sync}, {"rename", failing::Rename}, {"close", failing::Close},
             {"mmap", failing::Map}};

const struct {
    const char* name;
    int code;
} Errors[] = {{"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EINTR", EINTR}, {"short", 0}};

// CALL:N:WHAT
void setFrom(const std::string& text)
{
    const std::size_t first = text.find(':');
    const std::size_t second = text.find(':', first + 1);
    if (second == std::string::npos)
        return;
    Fault fault;
    for (const auto& each : Names)
        if (text.compare(0, first, each.name) == 0)
            fault.call = each.call;
    for (const auto& each : Errors)
        if (text.compare(second + 1, std::string::npos, each.name) == 0)
            fault.error = each.code;
    fault.nth = std::atoi(text.c_str() + first + 1);
    failing::failingSet(&fault);
}

__attribute__((constructor)) void readEnvironment()
{
    s_folder = std::getenv("SCOPIX_FAIL_IN");
    if (const char* text = std::getenv("SCOPIX_FAIL"))
        setFrom(text);
}

} // namespace

extern "C" {

void failing::failingSet(const Fault* fault)
{
    s_isSet = false;
    if (!fault)
        return;
    for (std::atomic<int>& count : s_counts)
        count = 0;
    s_fault = *fault;
    s_isSet = true;
}

void failing::failingBelow(const char* folder)
{
    s_folder = folder;
}

int failing::failingCount(Call call)
{
    return s_counts[call];
}

#define SHOWN __attribute__((visibility("default")))
#define REAL(name) static const auto next_##name = real(#name, &name)

#define OPENS(name)                                                                                          \
    SHOWN int name(const char* path, int flags, ...)                                                         \
    {                                                                                                        \
        REAL(name);                                                                                          \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const auto mode = (flags & (O_CREAT | __O_TMPFILE)) ? va_arg(arguments, mode_t) : mode_t{0};         \
        va_end(arguments);                                                                                   \
        return nextOpen(path) == Verdict::Fails ? -1 : next_##name(path, flags, mode);                       \
    }
OPENS(open)
OPENS(open64)

#define OPENS_AT(name)                                                                                       \
    SHOWN int name(int folder, const char* path, int flags, ...)                                             \
    {                                                                                                        \
        REAL(name);                                                                                          \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const auto mode = (flags & (O_CREAT | __O_TMPFILE)) ? va_arg(arguments, mode_t) : mode_t{0};         \
        va_end(arguments);                                                                                   \
        return nextOpen(path) == Verdict::Fails ? -1 : next_##name(folder, path, flags, mode);               \
    }
OPENS_AT(openat)
OPENS_AT(openat64)

#define OPENS_STREAM(name)                                                                                   \
    SHOWN std::FILE* name(const char* path, const char* mode)                                                \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return nextOpen(path) == Verdict::Fails ? nullptr : next_##name(path, mode);                         \
    }
OPENS_STREAM(fopen)
OPENS_STREAM(fopen64)

#define MAKES(name)                                                                                          \
    SHOWN int name(char* path)                                                                               \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return nextOpen(path) == Verdict::Fails ? -1 : next_##name(path);                                    \
    }
MAKES(mkstemp)
MAKES(mkstemp64)

#define MAKES_WITH(name)                                                                                     \
    SHOWN int name(char* path, int flags)                                                                    \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return nextOpen(path) == Verdict::Fails ? -1 : next_##name(path, flags);                             \
    }
MAKES_WITH(mkostemp)
MAKES_WITH(mkostemp64)

SHOWN ssize_t read(int file, void* bytes, std::size_t size)
{
    REAL(read);
    const Verdict verdict = next(failing::Read, file);
    return verdict == Verdict::Fails ? -1 : next_read(file, bytes, halved(verdict, size));
}

#define READS_AT(name, Offset)                                                                               \
    SHOWN ssize_t name(int file, void* bytes, std::size_t size, Offset at)                                   \
    {                                                                                                        \
        REAL(name);                                                                                          \
        const Verdict verdict = next(failing::Read, file);                                                   \
        return verdict == Verdict::Fails ? -1 : next_##name(file, bytes, halved(verdict, size), at);         \
    }
READS_AT(pread, off_t)
READS_AT(pread64, off64_t)

SHOWN std::size_t fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file)
{
    REAL(fread);
    const Verdict verdict = next(failing::Read, fileno(file));
    return verdict == Verdict::Fails ? 0 : next_fread(bytes, size, halved(verdict, count), file);
}

SHOWN ssize_t write(int file, const void* bytes, std::size_t size)
{
    REAL(write);
    const Verdict verdict = next(failing::Write, file);
    return verdict == Verdict::Fails ? -1 : next_write(file, bytes, halved(verdict, size));
}

SHOWN ssize_t writev(int file, const iovec* parts, int count)
{
    REAL(writev);
    const Verdict verdict = next(failing::Write, file);
    return verdict == Verdict::Fails ? -1
                                     : next_writev(file, parts, int(halved(verdict, std::size_t(count))));
}

#define WRITES_AT(name, Offset)                                                                              \
    SHOWN ssize_t name(int file, const void* bytes, std::size_t size, Offset at)                             \
    {                                                                                                        \
        REAL(name);                                                                                          \
        const Verdict verdict = next(failing::Write, file);                                                  \
        return verdict == Verdict::Fails ? -1 : next_##name(file, bytes, halved(verdict, size), at);         \
    }
WRITES_AT(pwrite, off_t)
WRITES_AT(pwrite64, off64_t)

// A stream takes what it is given and fails to write it: no half of it is reported.
SHOWN std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* file)
{
    REAL(fwrite);
    const Verdict verdict = next(failing::Write, fileno(file));
    return verdict == Verdict::Fails ? 0 : next_fwrite(bytes, size, count, file);
}

SHOWN int fflush(std::FILE* file)
{
    REAL(fflush);
    const bool fails = file && next(failing::Write, fileno(file)) == Verdict::Fails;
    return fails ? EOF : next_fflush(file);
}

#define SYNCS(name)                                                                                          \
    SHOWN int name(int file)                                                                                 \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return next(failing::Sync, file) == Verdict::Fails ? -1 : next_##name(file);                         \
    }
SYNCS(fsync)
SYNCS(fdatasync)

#define RENAMES(name)                                                                                        \
    SHOWN int name(const char* from, const char* to) noexcept                                                \
    {                                                                                                        \
        REAL(name);                                                                                          \
        return nextFor(failing::Rename, to) == Verdict::Fails ? -1 : next_##name(from, to);                  \
    }
RENAMES(rename)
RENAMES(link)

SHOWN int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept
{
    REAL(renameat);
    return nextFor(failing::Rename, to) == Verdict::Fails ? -1
                                                          : next_renameat(fromFolder, from, toFolder, to);
}

SHOWN int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    REAL(renameat2);
    return nextFor(failing::Rename, to) == Verdict::Fails
               ? -1
               : next_renameat2(fromFolder, from, toFolder, to, flags);
}

SHOWN int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    REAL(linkat);
    return nextFor(failing::Rename, to) == Verdict::Fails
               ? -1
               : next_linkat(fromFolder, from, toFolder, to, flags);
}

// What fails to close is closed nevertheless, as on Linux.
SHOWN int close(int file)
{
    REAL(close);
    const Verdict verdict = next(failing::Close, file);
    const int error = errno;
    const int result = next_close(file);
    errno = verdict == Verdict::Fails ? error : errno;
    return verdict == Verdict::Fails ? -1 : result;
}

SHOWN int fclose(std::FILE* file)
{
    REAL(fclose);
    const Verdict verdict = next(failing::Close, fileno(file));
    const int error = errno;
    const int result = next_fclose(file);
    errno = verdict == Verdict::Fails ? error : errno;
    return verdict == Verdict::Fails ? EOF : result;
}

#define MAPS(name, Offset)                                                                                   \
    SHOWN void* name(void* at, std::size_t size, int access, int flags, int file, Offset offset) noexcept    \
    {                                                                                                        \
        REAL(name);                                                                                          \
        const bool fails = file >= 0 && next(failing::Map, file) == Verdict::Fails;                          \
        return fails ? MAP_FAILED : next_##name(at, size, access, flags, file, offset);                      \
    }
MAPS(mmap, off_t)
MAPS(mmap64, off64_t)

} // extern "C"

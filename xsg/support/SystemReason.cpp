// SPDX-License-Identifier: MIT
#include <xsg/support/SystemReason.h>

#include <cerrno>
#include <cstring>

SbSentence xsg::systemReason(int code)
{
    switch (code) {
    case EACCES:
        return SbSentence("Permission denied");
    case EPERM:
        return SbSentence("Operation not permitted");
    case ENOENT:
        return SbSentence("No such file or directory");
    case EEXIST:
        return SbSentence("File exists");
    case EISDIR:
        return SbSentence("Is a directory");
    case ENOTDIR:
        return SbSentence("Not a directory");
    case ELOOP:
        return SbSentence("Too many levels of symbolic links");
    case ENAMETOOLONG:
        return SbSentence("File name too long");
    case EROFS:
        return SbSentence("Read-only file system");
    case ENOSPC:
        return SbSentence("No space left on device");
    case EDQUOT:
        return SbSentence("Disk quota exceeded");
    case EFBIG:
        return SbSentence("File too large");
    case EIO:
        return SbSentence("Input/output error");
    case EBUSY:
        return SbSentence("Device or resource busy");
    case ETXTBSY:
        return SbSentence("Text file busy");
    case EMFILE:
        return SbSentence("Too many open files");
    case ENFILE:
        return SbSentence("Too many open files in system");
    case ENOMEM:
        return SbSentence("Cannot allocate memory");
    default:
        return SbSentence::verbatim(std::strerror(code));
    }
}

SbSentence xsg::systemReasonOf(const std::string& words)
{
    constexpr int LastCode = 133; // of Linux
    for (int code = 1; code <= LastCode; ++code) {
        const char* english = strerrordesc_np(code);
        if (english && (words == english || words == std::strerror(code)))
            return systemReason(code);
    }
    return SbSentence::verbatim(words);
}

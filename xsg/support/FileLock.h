// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <chrono>
#include <string>

namespace xsg
{

/// Keeps other programs that ask for the same lock off a file, from its construction to its destruction. The
/// system releases it when the program ends, however that happens, so that none is ever left behind. Waits
/// for another program for a while only. One thread at a time.
class XSG_API FileLock
{
public:
    enum class Kind {
        Shared,   // to read; needs the file
        Exclusive // to write; creates an empty file where there is none
    };
    static constexpr std::chrono::milliseconds Patience{2000};

    FileLock(const std::string& path, Kind kind, std::chrono::milliseconds patience = Patience);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Another program has held it for all that time. False also where the file cannot be locked at all: what
    /// comes then is no worse than without locks.
    bool isBusy() const { return m_isBusy; }

private:
    enum class Attempt { Held, Elsewhere, Outdated, Impossible };
    Attempt tryOnce(const std::string& path, Kind kind);
    void release();

    int m_descriptor = -1;
    bool m_isBusy = false;
};

} // namespace xsg

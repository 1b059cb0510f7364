// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/transport/FileDescriptor.h>

namespace scopix::live
{

/// Ends the wait of a thread that polls `number`. Any thread may call `wake`.
class Wakeup
{
public:
    Wakeup();

    int number() const noexcept { return m_file.number(); }
    void wake() const noexcept;
    void clear() const noexcept;

private:
    FileDescriptor m_file;
};

} // namespace scopix::live

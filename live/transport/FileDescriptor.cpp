// SPDX-License-Identifier: MIT
#include "FileDescriptor.h"

#include <unistd.h>

namespace scopix::live
{

void FileDescriptor::close() noexcept
{
    if (m_number >= 0)
        ::close(std::exchange(m_number, -1));
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#include "Wakeup.h"

#include <sys/eventfd.h>

namespace scopix::live
{

Wakeup::Wakeup()
    : m_file(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

void Wakeup::wake() const noexcept
{
    eventfd_write(m_file.number(), 1);
}

void Wakeup::clear() const noexcept
{
    eventfd_t count = 0;
    eventfd_read(m_file.number(), &count);
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#pragma once

#include "Messages.h"

namespace scopix::live
{

/// Makes messages of the bytes that arrive, in whatever pieces they do.
///
/// It keeps what has arrived and nothing for what a length only announces. A message that is longer than the
/// limit breaks it, and then nothing comes any more.
class MessageBuffer
{
public:
    explicit MessageBuffer(std::size_t longest = LongestMessage);

    void setLongest(std::size_t longest) noexcept { m_longest = longest; }
    void add(const std::uint8_t* bytes, std::size_t size);
    std::optional<Message> take();
    bool isBroken() const noexcept { return m_broken; }

private:
    std::size_t left() const noexcept { return m_bytes.size() - m_place; }
    void dropTaken();

    Bytes m_bytes;
    std::size_t m_place = 0;
    std::size_t m_longest;
    bool m_broken = false;
};

} // namespace scopix::live

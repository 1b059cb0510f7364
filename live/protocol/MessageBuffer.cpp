// SPDX-License-Identifier: MIT
#include "MessageBuffer.h"

namespace scopix::live
{

namespace
{

template <class T>
T numberAt(const std::uint8_t* place)
{
    T number;
    std::memcpy(&number, place, sizeof number);
    return number;
}

} // namespace

MessageBuffer::MessageBuffer(std::size_t longest)
    : m_longest(longest)
{
}

void MessageBuffer::add(const std::uint8_t* bytes, std::size_t size)
{
    if (m_broken)
        return;
    dropTaken();
    m_bytes.insert(m_bytes.end(), bytes, bytes + size);
}

void MessageBuffer::dropTaken()
{
    m_bytes.erase(m_bytes.begin(), m_bytes.begin() + static_cast<std::ptrdiff_t>(m_place));
    m_place = 0;
    if (m_bytes.empty() && m_bytes.capacity() > LongestGreeting)
        Bytes().swap(m_bytes);
}

std::optional<Message> MessageBuffer::take()
{
    if (m_broken || left() < HeadSize)
        return std::nullopt;
    const std::uint8_t* head = m_bytes.data() + m_place;
    const std::size_t size = numberAt<std::uint32_t>(head);
    m_broken = size > m_longest || numberAt<std::uint16_t>(head + 6) != 0;
    if (m_broken || left() - HeadSize < size)
        return std::nullopt;
    const std::uint8_t* contents = head + HeadSize;
    Message message{
        numberAt<std::uint16_t>(head + 4), numberAt<std::uint32_t>(head + 8), {contents, contents + size}};
    m_place += HeadSize + size;
    return message;
}

} // namespace scopix::live

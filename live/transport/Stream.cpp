// SPDX-License-Identifier: MIT
#include "Stream.h"

#include <array>
#include <cerrno>

namespace scopix::live
{

namespace
{

constexpr std::size_t Piece = std::size_t(256) << 10;
constexpr std::size_t MostMemory = 4;      // that nobody has taken yet
constexpr std::size_t JoinedBytes = 32768; // short messages travel together

bool isForLater(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

} // namespace

Stream::Stream(FileDescriptor socket, bool takesMemory)
    : m_socket(std::move(socket))
    , m_takesMemory(takesMemory)
{
}

bool Stream::receive()
{
    thread_local std::vector<std::uint8_t> piece(Piece);
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int) * MostMemory)> control{};
    iovec part{piece.data(), piece.size()};
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    if (m_takesMemory) {
        head.msg_control = control.data();
        head.msg_controllen = control.size();
    }
    const ssize_t size = recvmsg(m_socket.number(), &head, MSG_CMSG_CLOEXEC);
    if (size < 0)
        return isForLater(errno);
    keepMemory(head);
    m_messages.add(piece.data(), static_cast<std::size_t>(size));
    return size > 0 && m_memory.size() <= MostMemory;
}

void Stream::keepMemory(msghdr& head)
{
    for (cmsghdr* part = CMSG_FIRSTHDR(&head); part; part = CMSG_NXTHDR(&head, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        const std::size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (std::size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof(int), sizeof number);
            m_memory.emplace_back(number);
        }
    }
}

FileDescriptor Stream::takeMemory()
{
    if (m_memory.empty())
        return FileDescriptor();
    FileDescriptor first = std::move(m_memory.front());
    m_memory.pop_front();
    return first;
}

void Stream::send(Outgoing message)
{
    if (m_queue.empty())
        m_lastProgress = Clock::now();
    m_waitingBytes += message.bytes.size();
    if (!m_queue.empty() && !message.memory &&
        m_queue.back().bytes.size() + message.bytes.size() < JoinedBytes) {
        Bytes& last = m_queue.back().bytes;
        last.insert(last.end(), message.bytes.begin(), message.bytes.end());
    } else {
        m_queue.push_back(std::move(message));
    }
}

bool Stream::flush()
{
    while (!m_queue.empty()) {
        ssize_t sent = 0;
        if (!sendFront(sent))
            return isForLater(errno);
        dropSent(static_cast<std::size_t>(sent));
    }
    return true;
}

// Memory goes with the first bytes of its message.
bool Stream::sendFront(ssize_t& sent)
{
    Outgoing& front = m_queue.front();
    iovec part{front.bytes.data() + m_sentOfFront, front.bytes.size() - m_sentOfFront};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
    msghdr head{};
    head.msg_iov = &part;
    head.msg_iovlen = 1;
    if (front.memory) {
        head.msg_control = control.data();
        head.msg_controllen = control.size();
        cmsghdr* rights = CMSG_FIRSTHDR(&head);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(int));
        const int number = front.memory.number();
        std::memcpy(CMSG_DATA(rights), &number, sizeof number);
    }
    sent = sendmsg(m_socket.number(), &head, MSG_NOSIGNAL | MSG_DONTWAIT);
    return sent > 0;
}

void Stream::dropSent(std::size_t sent)
{
    m_lastProgress = Clock::now();
    m_waitingBytes -= sent;
    m_sentOfFront += sent;
    Outgoing& front = m_queue.front();
    front.memory.close();
    if (m_sentOfFront == front.bytes.size()) {
        m_queue.pop_front();
        m_sentOfFront = 0;
    }
}

} // namespace scopix::live

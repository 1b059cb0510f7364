// SPDX-License-Identifier: MIT
#pragma once

#include "FileDescriptor.h"

#include <scopix/live/protocol/MessageBuffer.h>

#include <chrono>
#include <deque>

#include <sys/socket.h>

namespace scopix::live
{

/// A packed message on its way out, with the memory that goes along, if any.
struct Outgoing {
    Bytes bytes;
    FileDescriptor memory;
};

/// One end of a connection: messages in and out, as far as that goes without waiting. For one thread.
class Stream
{
public:
    using Clock = std::chrono::steady_clock;

    /// `takesMemory`: whether the other side may send some along; it is closed unseen otherwise.
    Stream(FileDescriptor socket, bool takesMemory);

    int number() const noexcept { return m_socket.number(); }

    /// Reads a piece. False once the other side has closed or something failed.
    bool receive();
    MessageBuffer& messages() noexcept { return m_messages; }
    /// The memory that came first of what nobody has taken yet.
    FileDescriptor takeMemory();

    void send(Outgoing message);
    /// Writes what can be written. False once the other side has closed.
    bool flush();
    bool isSending() const noexcept { return !m_queue.empty(); }
    std::size_t waitingBytes() const noexcept { return m_waitingBytes; }
    /// When the other side took something, or there was nothing for it to take.
    Clock::time_point lastProgress() const noexcept { return m_lastProgress; }

private:
    void keepMemory(msghdr& head);
    bool sendFront(ssize_t& sent);
    void dropSent(std::size_t sent);

    FileDescriptor m_socket;
    bool m_takesMemory;
    MessageBuffer m_messages;
    std::deque<FileDescriptor> m_memory;
    std::deque<Outgoing> m_queue;
    std::size_t m_sentOfFront = 0;
    std::size_t m_waitingBytes = 0;
    Clock::time_point m_lastProgress = Clock::now();
};

} // namespace scopix::live

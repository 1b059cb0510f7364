// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/protocol/MessageBuffer.h>
#include <scopix/live/transport/FileDescriptor.h>

#include <functional>
#include <string>

/// One end of a connection that sends whatever it likes, and reads only when it is told to.
class RawPeer
{
public:
    /// `step` is called while it waits, as for a program in the same thread.
    RawPeer(const std::string& path, std::function<void()> step);
    RawPeer(scopix::live::FileDescriptor socket, std::function<void()> step);

    void greet(std::uint32_t version = scopix::live::ProtocolVersion);
    /// Sends as much of the bytes as goes without waiting; false once the other side has closed.
    bool send(const scopix::live::Bytes& bytes);
    /// Sends what goes without waiting of bytes that it goes on with at the next call, from their start again
    /// at their end.
    void sendSome(const scopix::live::Bytes& bytes);
    /// Until a message of this type comes; none where the other side closes before.
    std::optional<scopix::live::Message> await(scopix::live::MessageType type);
    /// The sentence with which the other side has ended the connection.
    std::string awaitGoodbye();
    bool isOpen() const { return m_isOpen; }
    void read();

private:
    scopix::live::FileDescriptor m_socket;
    std::function<void()> m_step;
    scopix::live::MessageBuffer m_messages;
    std::size_t m_sent = 0; // of what it sends again and again
    bool m_isOpen = true;
};

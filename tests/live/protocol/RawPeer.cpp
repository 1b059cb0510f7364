// SPDX-License-Identifier: MIT
#include "RawPeer.h"

#include <scopix/live/transport/Sockets.h>

#include <cerrno>
#include <chrono>

#include <poll.h>
#include <sys/socket.h>

using namespace scopix::live;
using namespace std::chrono_literals;

RawPeer::RawPeer(const std::string& path, std::function<void()> step)
    : RawPeer(connectTo(path), std::move(step))
{
}

RawPeer::RawPeer(FileDescriptor socket, std::function<void()> step)
    : m_socket(std::move(socket))
    , m_step(std::move(step))
    , m_isOpen(static_cast<bool>(m_socket))
{
}

void RawPeer::greet(std::uint32_t version)
{
    Greeting greeting = Greeting::ofThisProcess({}, {});
    greeting.version = version;
    send(packedMessage(MessageType::Hello, 0, greeting));
}

bool RawPeer::send(const Bytes& bytes)
{
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t size =
            ::send(m_socket.number(), bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (size < 0 && errno != EAGAIN)
            return false;
        if (size < 0)
            return true;
        sent += static_cast<std::size_t>(size);
    }
    return true;
}

void RawPeer::sendSome(const Bytes& bytes)
{
    const ssize_t size =
        ::send(m_socket.number(), bytes.data() + m_sent, bytes.size() - m_sent, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (size > 0)
        m_sent = (m_sent + static_cast<std::size_t>(size)) % bytes.size();
}

void RawPeer::read()
{
    std::uint8_t bytes[65536];
    pollfd file{m_socket.number(), POLLIN, 0};
    if (poll(&file, 1, 1) <= 0)
        return;
    const ssize_t size = recv(m_socket.number(), bytes, sizeof bytes, MSG_DONTWAIT);
    if (size > 0)
        m_messages.add(bytes, static_cast<std::size_t>(size));
    else
        m_isOpen = false;
}

std::optional<Message> RawPeer::await(MessageType type)
{
    const auto patience = std::chrono::steady_clock::now() + 60s;
    while (std::chrono::steady_clock::now() < patience) {
        while (std::optional<Message> message = m_messages.take())
            if (message->is(type))
                return message;
        if (!m_isOpen)
            return std::nullopt;
        if (m_step)
            m_step();
        read();
    }
    return std::nullopt;
}

std::string RawPeer::awaitGoodbye()
{
    const std::optional<Message> message = await(MessageType::Goodbye);
    if (!message)
        return {};
    const auto parameters = contentsOf<Parameters<MessageType::Goodbye>>(*message);
    return parameters ? std::get<0>(*parameters) : std::string();
}

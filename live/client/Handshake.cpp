// SPDX-License-Identifier: MIT
#include "Handshake.h"

#include <scopix/live/transport/SocketFolder.h>
#include <scopix/live/transport/Sockets.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <unistd.h>

namespace scopix::live
{

namespace
{

std::string reasonOf(int error)
{
    if (error == ECONNREFUSED || error == ENOENT)
        return "no program listens there any more";
    if (error == EAGAIN)
        return "the program does not answer";
    return std::strerror(error);
}

std::string failure(const std::string& path, const std::string& reason)
{
    return "Cannot attach to “" + path + "”: " + reason + ".";
}

// A greeting of any version: what follows it is of that version.
std::optional<Greeting> greetingOf(const Message& message)
{
    Reader reader(message.contents);
    Greeting greeting;
    reader(greeting);
    if (!message.is(MessageType::Hello) || !reader.isGood() || !greeting.isOurs())
        return std::nullopt;
    return greeting;
}

} // namespace

Handshake::Handshake(const std::string& path)
    : m_path(path)
{
    FileDescriptor socket = connectTo(path);
    if (!socket) {
        const int error = errno;
        m_isStale = error == ECONNREFUSED;
        m_problem = failure(path, reasonOf(error));
        return;
    }
    const std::optional<uid_t> user = peerUser(socket);
    if (!user || !mayTalk(*user, geteuid())) {
        m_problem = failure(path, "it is another user’s program; inspect it as that user");
        return;
    }
    m_stream = std::make_unique<Stream>(std::move(socket), true);
    m_stream->messages().setLongest(LongestIntroduction);
}

void Handshake::waitForAll(std::vector<Handshake>& handshakes, Stream::Clock::duration most)
{
    const auto end = Stream::Clock::now() + most;
    while (true) {
        std::vector<pollfd> files;
        std::vector<Handshake*> waiting;
        for (Handshake& handshake : handshakes)
            if (handshake.isWaiting()) {
                files.push_back({handshake.number(), POLLIN, 0});
                waiting.push_back(&handshake);
            }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(end - Stream::Clock::now()).count();
        if (waiting.empty() || left <= 0)
            return;
        poll(files.data(), files.size(), static_cast<int>(left));
        for (std::size_t i = 0; i < files.size(); ++i)
            if (files[i].revents != 0)
                waiting[i]->read();
    }
}

void Handshake::read()
{
    const bool isOpen = m_stream->receive();
    while (isWaiting()) {
        const std::optional<Message> message = m_stream->messages().take();
        if (!message)
            break;
        take(*message);
    }
    if (isWaiting() && m_stream->messages().isBroken())
        m_problem = failure(m_path, "what listens there is no program that can be inspected");
    else if (isWaiting() && !isOpen)
        m_problem = failure(m_path, "the program has closed the connection");
}

void Handshake::take(const Message& message)
{
    if (const auto reason = contentsOf<Parameters<MessageType::Goodbye>>(message);
        message.is(MessageType::Goodbye) && reason)
        m_problem = std::get<0>(*reason);
    else
        takeHello(message);
}

void Handshake::takeHello(const Message& message)
{
    const std::optional<Greeting> greeting = greetingOf(message);
    if (!greeting) {
        m_problem = failure(m_path, "what listens there is no program that can be inspected");
        return;
    }
    m_isGreeted = true;
    m_program = {m_path, greeting->name, greeting->sceneGraph, greeting->pid, greeting->version};
    if (greeting->version != ProtocolVersion) {
        m_problem = "Cannot attach to “" + greeting->name + "”: it speaks version " +
                    std::to_string(greeting->version) + " of the protocol and this inspector version " +
                    std::to_string(ProtocolVersion) + "; use libraries and an inspector of the same version.";
    } else if (auto introduction = contentsOf<Introduction>(message)) {
        m_introduction = std::move(*introduction);
    } else {
        m_problem = failure(m_path, "its greeting is damaged");
    }
}

std::string Handshake::problem() const
{
    if (!m_problem.empty() || m_isGreeted)
        return m_problem;
    return failure(m_path, "the program does not answer");
}

std::unique_ptr<Stream> Handshake::takeStream()
{
    m_stream->messages().setLongest(LongestMessage);
    m_stream->send({packedMessage(MessageType::Hello, 0, Greeting::ofThisProcess({}, {})), FileDescriptor()});
    return std::move(m_stream);
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#include "Handshake.h"

#include "SentenceOfProgram.h"

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

Sentence noAnswer(const std::string& path)
{
    return Sentence("Cannot attach to “%1”: the program does not answer.", {path});
}

Sentence noProgram(const std::string& path)
{
    return Sentence("Cannot attach to “%1”: what listens there is no program that can be inspected.", {path});
}

Sentence failure(const std::string& path, int error)
{
    if (error == ECONNREFUSED || error == ENOENT)
        return Sentence("Cannot attach to “%1”: no program listens there any more.", {path});
    if (error == EACCES)
        return Sentence("Cannot attach to “%1”: you may not open its socket.", {path});
    if (error == EAGAIN)
        return noAnswer(path);
    return Sentence("Cannot attach to “%1”: %2.", {path, std::strerror(error)});
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
        m_problem = failure(path, error);
        return;
    }
    const std::optional<uid_t> user = peerUser(socket);
    if (!user || !mayTalk(*user, geteuid())) {
        m_problem =
            Sentence("Cannot attach to “%1”: it is another user’s program; inspect it as that user.", {path});
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
        m_problem = noProgram(m_path);
    else if (isWaiting() && !isOpen)
        m_problem = Sentence("Cannot attach to “%1”: the program has closed the connection.", {m_path});
}

void Handshake::take(const Message& message)
{
    if (const auto reason = contentsOf<Parameters<MessageType::Goodbye>>(message);
        message.is(MessageType::Goodbye) && reason)
        m_problem = sentenceOfProgram(std::get<0>(*reason));
    else
        takeHello(message);
}

void Handshake::takeHello(const Message& message)
{
    const std::optional<Greeting> greeting = greetingOf(message);
    if (!greeting) {
        m_problem = noProgram(m_path);
        return;
    }
    m_isGreeted = true;
    m_program = {m_path, greeting->name, greeting->sceneGraph, greeting->pid, greeting->version};
    if (greeting->version != ProtocolVersion) {
        m_problem =
            Sentence("Cannot attach to “%1”: it speaks version %2 of the protocol and this inspector "
                     "version %3; use libraries and an inspector of the same version.",
                     {greeting->name, std::to_string(greeting->version), std::to_string(ProtocolVersion)});
    } else if (auto introduction = contentsOf<Introduction>(message)) {
        m_introduction = std::move(*introduction);
    } else {
        m_problem = Sentence("Cannot attach to “%1”: its greeting is damaged.", {m_path});
    }
}

Sentence Handshake::problem() const
{
    if (!m_problem.empty() || m_isGreeted)
        return m_problem;
    return noAnswer(m_path);
}

std::unique_ptr<Stream> Handshake::takeStream()
{
    m_stream->messages().setLongest(LongestMessage);
    m_stream->send({packedMessage(MessageType::Hello, 0, Greeting::ofThisProcess({}, {})), FileDescriptor()});
    return std::move(m_stream);
}

} // namespace scopix::live

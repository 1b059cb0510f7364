// SPDX-License-Identifier: MIT
#pragma once

#include "Client.h"

#include <scopix/live/transport/Stream.h>

#include <memory>

namespace scopix::live
{

/// The start of a connection: it waits for the program to say who it is.
class Handshake
{
public:
    explicit Handshake(const std::string& path);

    /// Reads what has come, for each of them, until all have been greeted or failed, or the time is over.
    static void waitForAll(std::vector<Handshake>& handshakes, Stream::Clock::duration most);

    bool isWaiting() const noexcept { return m_stream && m_problem.empty() && !m_isGreeted; }
    /// Whether the socket is left over from a program that is gone.
    bool isStale() const noexcept { return m_isStale; }
    /// Whether the program has said who it is, in whatever version.
    bool isGreeted() const noexcept { return m_isGreeted; }
    const Program& program() const noexcept { return m_program; }

    /// Why nothing can come of it, in a sentence: another version, another user, nobody there, no answer.
    Sentence problem() const;
    const Introduction& introduction() const noexcept { return m_introduction; }
    /// The connection goes on; the program is greeted in return.
    std::unique_ptr<Stream> takeStream();

private:
    int number() const noexcept { return m_stream->number(); }
    void read();
    void take(const Message& message);
    void takeHello(const Message& message);

    std::string m_path;
    std::unique_ptr<Stream> m_stream;
    Program m_program;
    Introduction m_introduction;
    bool m_isStale = false;
    bool m_isGreeted = false;
    Sentence m_problem;
};

} // namespace scopix::live

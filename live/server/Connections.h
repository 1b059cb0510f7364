// SPDX-License-Identifier: MIT
#pragma once

#include "Peer.h"

#include <scopix/live/transport/Sockets.h>
#include <scopix/live/transport/Stream.h>

#include <atomic>
#include <functional>
#include <list>
#include <thread>

namespace scopix::live
{

/// The server's thread: it accepts inspectors, reads what they ask and sends what they are told, and touches
/// nothing of the program. Everything that comes in is checked here, so that a damaged message costs the
/// program nothing.
class Connections
{
public:
    /// How long an inspector may take before it is detached.
    struct Patience {
        std::chrono::milliseconds greeting{2000};
        std::chrono::milliseconds taking{10000}; // anything of what waits for it
        std::chrono::milliseconds closing{1000};
    };

    /// `introduction` goes to whoever connects.
    explicit Connections(Introduction introduction, Patience patience);
    ~Connections();
    Connections(const Connections&) = delete;
    Connections& operator=(const Connections&) = delete;

    const std::string& path() const noexcept { return m_path; }
    const std::string& problem() const noexcept { return m_problem; }

    /// Whether the program has to look: somebody is attached, or was when it looked last.
    bool hasWork() const noexcept { return m_hasWork.load(std::memory_order_relaxed); }
    /// Those that attached since it was asked last. `othersAreThere`: whether there is work without them.
    std::vector<std::shared_ptr<Peer>> takeNew(bool othersAreThere);
    /// `wake` is called, in any thread, when there is something to do for the program.
    void setWake(std::function<void()> wake);
    void wakeProgram();

private:
    using Clock = Stream::Clock;

    struct Connection {
        explicit Connection(FileDescriptor socket)
            : stream(std::move(socket), false)
        {
        }

        Stream stream;
        std::shared_ptr<Peer> peer; // once it is attached
        Clock::time_point since = Clock::now();
        bool isClosing = false; // as soon as all is sent
        bool isOver = false;
    };

    void run();
    void waitForSomething();
    bool hasDeadlines() const;
    void acceptAll();
    void accept(FileDescriptor socket);
    void serve(Connection& connection, short events);
    void read(Connection& connection);
    void take(Connection& connection, Message message);
    void greet(Connection& connection, const Message& message);
    void attach(Connection& connection);
    void fetchAnswers(Connection& connection);
    void write(Connection& connection);
    void endLate(Connection& connection);
    void sendAway(Connection& connection, const std::string& reason);
    void dropOver();
    void sayGoodbye();
    bool mayAccept() const;

    Introduction m_introduction;
    Patience m_patience;
    FileDescriptor m_socket;
    std::string m_path;
    std::string m_problem;
    pid_t m_owner;
    std::shared_ptr<Wakeup> m_wakeup = std::make_shared<Wakeup>();
    std::atomic<bool> m_hasWork{false};
    std::atomic<bool> m_ends{false};

    std::mutex m_mutex; // of the two below
    std::vector<std::shared_ptr<Peer>> m_new;
    std::function<void()> m_wakeProgram;

    std::list<Connection> m_connections; // of the server's thread
    bool m_isOutOfFiles = false;
    std::thread m_thread;
};

} // namespace scopix::live

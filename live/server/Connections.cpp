// SPDX-License-Identifier: MIT
#include "Connections.h"

#include <scopix/live/transport/SharedPicture.h>
#include <scopix/live/transport/SocketFolder.h>
#include <scopix/live/values/LiveSentence.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <system_error>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace scopix::live
{

namespace
{

using namespace std::chrono_literals;

constexpr std::size_t MostConnections = 32;
constexpr auto TimeOfEnd = 200ms;

template <MessageType... types>
bool isSound(MessageList<types...> list, const Message& message)
{
    bool sound = false;
    forEachOf(list, [&](auto type) {
        if (message.is(type()))
            sound = contentsOf<Parameters<type()>>(message).has_value();
    });
    return sound;
}

bool isSound(const Message& message)
{
    return isSound(Questions(), message) || isSound(Requests(), message);
}

// What the program's signal handlers do is for its own threads.
class WithoutSignals
{
public:
    WithoutSignals()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_former);
    }
    ~WithoutSignals() { pthread_sigmask(SIG_SETMASK, &m_former, nullptr); }
    WithoutSignals(const WithoutSignals&) = delete;
    WithoutSignals& operator=(const WithoutSignals&) = delete;

private:
    sigset_t m_former{};
};

} // namespace

Connections::Connections(Introduction introduction, Patience patience)
    : m_introduction(std::move(introduction))
    , m_patience(patience)
    , m_owner(getpid())
{
    const SocketFolder folder = ownSocketFolder();
    m_problem = folder.problem;
    if (m_wakeup->number() < 0)
        m_problem = "Inspectors cannot attach to this program, since it has no files left to open.";
    if (!m_problem.empty())
        return;
    clearStaleSockets(folder.path);
    Listening listening = listenIn(folder.path);
    m_socket = std::move(listening.socket);
    m_path = listening.path;
    m_problem = listening.problem;
    if (!m_problem.empty())
        return;
    try {
        const WithoutSignals inherited;
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error& error) {
        unlink(m_path.c_str());
        m_path.clear();
        m_problem = std::string("Inspectors cannot attach to this program, since it can start no thread: ") +
                    error.what() + ".";
    }
}

// A child process that was forked has neither the thread nor the socket's name for its own.
Connections::~Connections()
{
    if (!m_thread.joinable())
        return;
    if (getpid() != m_owner) {
        m_thread.detach();
        return;
    }
    unlink(m_path.c_str());
    m_ends = true;
    m_wakeup->wake();
    m_thread.join();
}

std::vector<std::shared_ptr<Peer>> Connections::takeNew(bool othersAreThere)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<std::shared_ptr<Peer>> taken = std::exchange(m_new, {});
    m_hasWork.store(othersAreThere || !taken.empty(), std::memory_order_relaxed);
    return taken;
}

void Connections::setWake(std::function<void()> wake)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_wakeProgram = std::move(wake);
}

void Connections::wakeProgram()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_wakeProgram)
        m_wakeProgram();
}

void Connections::run()
{
    while (!m_ends) {
        try {
            waitForSomething();
            dropOver();
        } catch (const std::bad_alloc&) { // whoever asked for so much goes
            for (Connection& connection : m_connections)
                connection.isOver = true;
            dropOver();
        }
    }
    sayGoodbye();
}

bool Connections::hasDeadlines() const
{
    return m_isOutOfFiles ||
           std::any_of(m_connections.begin(), m_connections.end(), [](const Connection& connection) {
               return !connection.peer || connection.isClosing || connection.stream.isSending();
           });
}

bool Connections::mayAccept() const
{
    return !m_isOutOfFiles && m_connections.size() < 2 * MostConnections;
}

void Connections::waitForSomething()
{
    std::vector<pollfd> files = {{m_wakeup->number(), POLLIN, 0},
                                 {mayAccept() ? m_socket.number() : -1, POLLIN, 0}};
    for (const Connection& connection : m_connections) {
        const bool reads =
            !connection.isClosing && (!connection.peer || connection.peer->hasRoomForQuestions());
        const int events = (reads ? POLLIN : 0) | (connection.stream.isSending() ? POLLOUT : 0);
        files.push_back({connection.stream.number(), static_cast<short>(events), 0});
    }
    if (poll(files.data(), files.size(), hasDeadlines() ? 250 : -1) < 0)
        return;
    m_isOutOfFiles = false;
    m_wakeup->clear();
    auto file = files.begin() + 2;
    for (Connection& connection : m_connections)
        serve(connection, (file++)->revents);
    if (files[1].revents & POLLIN)
        acceptAll();
}

void Connections::acceptAll()
{
    while (mayAccept()) {
        FileDescriptor socket(accept4(m_socket.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (!socket) {
            m_isOutOfFiles = errno == EMFILE || errno == ENFILE || errno == ENOMEM || errno == ENOBUFS;
            return;
        }
        accept(std::move(socket));
    }
}

void Connections::accept(FileDescriptor socket)
{
    const std::optional<uid_t> user = peerUser(socket);
    Connection& connection = m_connections.emplace_back(std::move(socket));
    connection.stream.messages().setLongest(LongestGreeting);
    if (!user || !mayTalk(*user, geteuid()))
        sendAway(connection, Sentence("The program “%1” belongs to another user; inspect it as that user.",
                                      {m_introduction.greeting.name}));
    else if (m_connections.size() > MostConnections)
        sendAway(connection,
                 Sentence("The program “%1” has as many inspectors as it can have; detach another one first.",
                          {m_introduction.greeting.name}));
    else
        connection.stream.send({packedMessage(MessageType::Hello, 0, m_introduction), FileDescriptor()});
    write(connection);
}

void Connections::serve(Connection& connection, short events)
{
    if (events & POLLIN)
        read(connection);
    else if (events & (POLLHUP | POLLERR | POLLNVAL))
        connection.isOver = true;
    if (!connection.isOver)
        fetchAnswers(connection);
    if (!connection.isOver)
        write(connection);
    endLate(connection);
}

void Connections::read(Connection& connection)
{
    if (connection.isClosing)
        return;
    if (!connection.stream.receive())
        connection.isOver = true;
    MessageBuffer& messages = connection.stream.messages();
    bool came = false;
    while (!connection.isClosing) {
        std::optional<Message> message = messages.take();
        if (!message)
            break;
        came = true;
        take(connection, std::move(*message));
    }
    if (messages.isBroken() && !connection.isClosing)
        sendAway(connection, Sentence("The inspector sent a message that is too long or damaged; detached."));
    if (came)
        wakeProgram();
}

void Connections::take(Connection& connection, Message message)
{
    if (!connection.peer)
        greet(connection, message);
    else if (isSound(message))
        connection.peer->addQuestion(std::move(message));
    else
        sendAway(connection,
                 Sentence("The inspector sent a message that this program does not understand; detached."));
}

void Connections::greet(Connection& connection, const Message& message)
{
    const std::optional<Greeting> greeting = contentsOf<Greeting>(message);
    const std::string& program = m_introduction.greeting.name;
    if (!message.is(MessageType::Hello) || !greeting || !greeting->isOurs())
        sendAway(connection,
                 Sentence("The program “%1” was not greeted as an inspector greets it.", {program}));
    else if (greeting->version != ProtocolVersion)
        sendAway(connection,
                 Sentence("The program “%1” speaks version %2 of the protocol and this inspector version %3; "
                          "use libraries and an inspector of the same version.",
                          {program, std::to_string(ProtocolVersion), std::to_string(greeting->version)}));
    else
        attach(connection);
}

void Connections::attach(Connection& connection)
{
    connection.peer = std::make_shared<Peer>(m_wakeup);
    connection.stream.messages().setLongest(LongestMessage);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_new.push_back(connection.peer);
    m_hasWork.store(true, std::memory_order_relaxed);
}

void Connections::fetchAnswers(Connection& connection)
{
    if (!connection.peer || connection.isClosing)
        return;
    for (Peer::Answer& answer : connection.peer->takeAnswers()) {
        Outgoing message{std::move(answer.bytes), FileDescriptor()};
        if (answer.picture) {
            message.memory = sharedPixels(*answer.picture);
            if (!message.memory) // asks the inspector to go on without it
                message.bytes = packedMessage(MessageType::PictureCame, 0, Number(0), Number(0));
        }
        connection.stream.send(std::move(message));
    }
    const std::string reason = connection.peer->reasonToGo();
    if (!reason.empty())
        sendAway(connection, reason);
}

void Connections::write(Connection& connection)
{
    if (!connection.stream.flush())
        connection.isOver = true;
    if (connection.peer)
        connection.peer->setUnsentBytes(connection.stream.waitingBytes());
    if (connection.isClosing && !connection.stream.isSending())
        connection.isOver = true;
}

// Where the other side takes nothing, no sentence would reach it either.
void Connections::endLate(Connection& connection)
{
    const auto now = Clock::now();
    if (connection.isClosing)
        connection.isOver |= now - connection.since > m_patience.closing;
    else if (!connection.peer && now - connection.since > m_patience.greeting)
        sendAway(connection, Sentence("The inspector did not greet the program in time."));
    if (connection.stream.isSending() && now - connection.stream.lastProgress() > m_patience.taking)
        connection.isOver = true;
}

void Connections::sendAway(Connection& connection, const std::string& reason)
{
    connection.stream.send({packedMessage(MessageType::Goodbye, 0, reason), FileDescriptor()});
    connection.isClosing = true;
    connection.since = Clock::now();
    if (connection.peer) {
        connection.peer->setGone();
        wakeProgram();
    }
}

void Connections::dropOver()
{
    bool left = false;
    m_connections.remove_if([&left](const Connection& connection) {
        if (connection.isOver && connection.peer) {
            connection.peer->setGone();
            left = true;
        }
        return connection.isOver;
    });
    if (left)
        wakeProgram();
}

// The last answers and a farewell, as far as they go through at once.
void Connections::sayGoodbye()
{
    const auto end = Clock::now() + TimeOfEnd;
    for (Connection& connection : m_connections) {
        fetchAnswers(connection);
        if (!connection.isClosing)
            sendAway(connection,
                     Sentence("The program “%1” has ended its connection.", {m_introduction.greeting.name}));
    }
    bool isSending = true;
    while (isSending && Clock::now() < end) {
        isSending = false;
        std::vector<pollfd> files;
        for (Connection& connection : m_connections) {
            write(connection);
            isSending |= connection.stream.isSending() && !connection.isOver;
            files.push_back({connection.isOver ? -1 : connection.stream.number(), POLLOUT, 0});
        }
        if (isSending)
            poll(files.data(), files.size(), 20);
    }
    m_connections.clear();
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#include "Client.h"

#include "Handshake.h"
#include "SentenceOfProgram.h"

#include <scopix/live/transport/SharedPicture.h>

#include <deque>

namespace scopix::live
{

namespace
{

using namespace std::chrono_literals;

constexpr auto TimeToConnect = 3s;                        // which only a program that is stopped takes
constexpr std::size_t BytesAtOnce = std::size_t(8) << 20; // the rest is for the next call

// An empty answer, and a refusal where there can be one.
template <class Result>
void refuse(const std::function<void(Result)>& answer, const Sentence& refusal)
{
    Result result{};
    if constexpr (std::is_same_v<Result, WriteResult> || std::is_same_v<Result, StructureResult>)
        result.refusal = refusal;
    if (answer)
        answer(std::move(result));
}

} // namespace

class Client::Private
{
public:
    explicit Private(ClientListener& listener)
        : m_listener(listener)
    {
    }

    Sentence connect(const std::string& path);
    void disconnect();
    void process();

    bool isConnected() const noexcept { return m_stream != nullptr; }
    int number() const noexcept { return m_stream ? m_stream->number() : -1; }
    bool wantsWrite() const noexcept { return m_stream && m_stream->isSending(); }
    double secondsWaiting() const noexcept;
    const Program& program() const noexcept { return m_program; }
    const Introduction& introduction() const noexcept { return m_introduction; }

    template <MessageType type, class... Parts>
    void ask(Answer<AnswerOf<type>> answer, const Parts&... parts);
    template <MessageType type, class... Parts>
    void tell(const Parts&... parts);

private:
    // What is done with the contents of an answer; false where they are damaged.
    using Handler = std::function<bool(const Message&)>;
    struct Pending {
        std::uint32_t id;
        std::uint16_t type;
        Stream::Clock::time_point since;
        Handler handler;
    };

    void send(Bytes message);
    void receive();
    void take(const Message& message);
    bool takeAnswer(const Message& message);
    bool takeEvent(const Message& message);
    void end(const Sentence& reason);
    void drop();

    void come(TypeConstant<MessageType::RootsChanged>) { m_listener.rootsChanged(); }
    void come(TypeConstant<MessageType::ChildrenChanged>, NodeId node) { m_listener.childrenChanged(node); }
    void come(TypeConstant<MessageType::NodeEnded>, NodeId node) { m_listener.nodeEnded(node); }
    void come(TypeConstant<MessageType::ValueChanged>, NodeId node, const Text& property, const Value& value)
    {
        m_listener.valueChanged(node, property, value);
    }
    void come(TypeConstant<MessageType::PictureCame>, Number width, Number height);
    void come(TypeConstant<MessageType::CountersCame>, const std::vector<double>& values)
    {
        m_listener.countersCame(values);
    }
    void come(TypeConstant<MessageType::NoticeCame>, const Notice& notice) { m_listener.noticeCame(notice); }
    void come(TypeConstant<MessageType::FramesCame>, const FrameTable& frames)
    {
        m_listener.framesCame(frames);
    }
    void come(TypeConstant<MessageType::Goodbye>, const Text& reason) { end(sentenceOfProgram(reason)); }

    ClientListener& m_listener;
    std::unique_ptr<Stream> m_stream;
    Program m_program;
    Introduction m_introduction;
    std::deque<Pending> m_pending;
    std::uint32_t m_lastId = 0;
    Stream::Clock::time_point m_lastAnswer;
};

Sentence Client::Private::connect(const std::string& path)
{
    disconnect();
    std::vector<Handshake> handshakes;
    handshakes.emplace_back(path);
    Handshake::waitForAll(handshakes, TimeToConnect);
    Handshake& handshake = handshakes.front();
    const Sentence problem = handshake.problem();
    if (!problem.empty())
        return problem;
    m_program = handshake.program();
    m_introduction = handshake.introduction();
    m_stream = handshake.takeStream();
    m_stream->flush();
    return {};
}

void Client::Private::disconnect()
{
    if (m_stream)
        m_stream->flush();
    drop();
}

// What an answer holds may end with it, and may call back here.
void Client::Private::drop()
{
    m_stream.reset();
    const std::deque<Pending> dropped = std::exchange(m_pending, {});
}

void Client::Private::end(const Sentence& reason)
{
    drop();
    m_listener.ended(reason);
}

double Client::Private::secondsWaiting() const noexcept
{
    if (m_pending.empty())
        return 0;
    const auto since = std::max(m_pending.front().since, m_lastAnswer);
    return std::chrono::duration<double>(Stream::Clock::now() - since).count();
}

void Client::Private::send(Bytes message)
{
    m_stream->send({std::move(message), FileDescriptor()});
}

template <MessageType type, class... Parts>
void Client::Private::ask(Answer<AnswerOf<type>> answer, const Parts&... parts)
{
    if (!m_stream)
        return refuse(answer, Sentence("The edit cannot be made: the program is not attached."));
    Bytes message = packedMessage(type, ++m_lastId == 0 ? ++m_lastId : m_lastId, parts...);
    if (message.size() > LongestMessage)
        return refuse(answer, Sentence("The edit cannot be made: it is too long."));
    m_pending.push_back({m_lastId, static_cast<std::uint16_t>(type), Stream::Clock::now(),
                         [answer = std::move(answer)](const Message& contents) {
                             auto result = contentsOf<AnswerOf<type>>(contents);
                             if (result && answer)
                                 answer(std::move(*result));
                             return result.has_value();
                         }});
    send(std::move(message));
}

template <MessageType type, class... Parts>
void Client::Private::tell(const Parts&... parts)
{
    if (m_stream)
        send(packedMessage(type, 0, parts...));
}

// A program that has said why it ends the connection has said it before it closed: so reading comes last.
void Client::Private::process()
{
    if (!m_stream)
        return;
    m_stream->flush();
    receive();
    if (m_stream)
        m_stream->flush();
}

void Client::Private::receive()
{
    bool isOpen = true;
    for (std::size_t read = 0; isOpen && m_stream && read < BytesAtOnce; ++read) {
        isOpen = m_stream->receive();
        std::optional<Message> message;
        bool came = false;
        while (m_stream && (message = m_stream->messages().take())) {
            came = true;
            take(*message);
        }
        if (!came)
            break;
    }
    if (m_stream && m_stream->messages().isBroken())
        end(Sentence("The program “%1” sent a message that is too long or damaged; detached.",
                     {m_program.name}));
    else if (m_stream && !isOpen)
        end(Sentence("The program “%1” has ended or was killed.", {m_program.name}));
}

void Client::Private::take(const Message& message)
{
    const bool isTaken = message.id == 0 ? takeEvent(message) : takeAnswer(message);
    if (!isTaken && m_stream)
        end(Sentence("The program “%1” sent a message that this inspector does not understand; detached.",
                     {m_program.name}));
}

bool Client::Private::takeAnswer(const Message& message)
{
    if (m_pending.empty() || m_pending.front().id != message.id || m_pending.front().type != message.type)
        return false;
    const Handler handler = std::move(m_pending.front().handler);
    m_pending.pop_front();
    m_lastAnswer = Stream::Clock::now();
    return handler(message);
}

bool Client::Private::takeEvent(const Message& message)
{
    bool isTaken = false;
    forEachOf(Events(), [&](auto type) {
        if (!message.is(type()))
            return;
        const auto parameters = contentsOf<Parameters<type()>>(message);
        isTaken = parameters.has_value();
        if (isTaken)
            std::apply([&](const auto&... each) { come(type, each...); }, *parameters);
    });
    return isTaken;
}

// The next one is sent once this one was taken, so that they never pile up.
void Client::Private::come(TypeConstant<MessageType::PictureCame>, Number width, Number height)
{
    std::optional<Picture> picture;
    if (width > 0 && height > 0)
        picture = pictureIn(m_stream->takeMemory(), width, height);
    tell<MessageType::PictureTaken>();
    if (picture)
        m_listener.pictureCame(*picture);
}

// Here, so that this library alone has the class.
ClientListener::~ClientListener() = default;

Client::Client(ClientListener& listener)
    : m_private(std::make_shared<Private>(listener))
{
}

Client::~Client()
{
    m_private->disconnect();
}

Sentence Client::connect(const std::string& socketPath)
{
    return m_private->connect(socketPath);
}

bool Client::isConnected() const noexcept
{
    return m_private->isConnected();
}

void Client::disconnect()
{
    const std::shared_ptr<Private> kept = m_private;
    kept->disconnect();
}

int Client::fileDescriptor() const noexcept
{
    return m_private->number();
}

bool Client::wantsWrite() const noexcept
{
    return m_private->wantsWrite();
}

void Client::process()
{
    const std::shared_ptr<Private> kept = m_private;
    kept->process();
}

double Client::secondsWaiting() const noexcept
{
    return m_private->secondsWaiting();
}

const Program& Client::program() const noexcept
{
    return m_private->program();
}

const Abilities& Client::abilities() const noexcept
{
    return m_private->introduction().abilities;
}

const std::vector<CounterInfo>& Client::counters() const noexcept
{
    return m_private->introduction().counters;
}

void Client::roots(Answer<std::vector<NodeInfo>> answer)
{
    m_private->ask<MessageType::Roots>(std::move(answer));
}

void Client::node(NodeId node, Answer<std::optional<NodeInfo>> answer)
{
    m_private->ask<MessageType::Node>(std::move(answer), node);
}

void Client::children(NodeId node, std::uint32_t first, std::uint32_t count,
                      Answer<std::vector<NodeInfo>> answer)
{
    m_private->ask<MessageType::Children>(std::move(answer), node, first, count);
}

void Client::pathsTo(NodeId node, std::uint32_t limit, Answer<std::vector<std::vector<NodeId>>> answer)
{
    m_private->ask<MessageType::PathsTo>(std::move(answer), node, limit);
}

void Client::properties(NodeId node, Answer<std::vector<PropertyInfo>> answer)
{
    m_private->ask<MessageType::Properties>(std::move(answer), node);
}

void Client::value(NodeId node, const std::string& property, Answer<std::optional<Value>> answer)
{
    m_private->ask<MessageType::GetValue>(std::move(answer), node, property);
}

void Client::write(NodeId node, const std::string& property, const Value& value, Answer<WriteResult> answer)
{
    if (!isWellFormed(value))
        return refuse(answer,
                      Sentence("The edit cannot be made: its value does not have the bytes of its kind."));
    m_private->ask<MessageType::Write>(std::move(answer), node, property, value);
}

void Client::addableTypes(NodeId parent, Answer<std::vector<std::string>> answer)
{
    m_private->ask<MessageType::AddableTypes>(std::move(answer), parent);
}

void Client::add(NodeId parent, std::uint32_t index, const std::string& type, Answer<StructureResult> answer)
{
    m_private->ask<MessageType::Add>(std::move(answer), parent, index, type);
}

void Client::remove(NodeId parent, std::uint32_t index, Answer<StructureResult> answer)
{
    m_private->ask<MessageType::Remove>(std::move(answer), parent, index);
}

void Client::insert(NodeId parent, std::uint32_t index, NodeId node, Answer<StructureResult> answer)
{
    m_private->ask<MessageType::Insert>(std::move(answer), parent, index, node);
}

void Client::copy(NodeId parent, std::uint32_t index, NodeId node, Answer<StructureResult> answer)
{
    m_private->ask<MessageType::Copy>(std::move(answer), parent, index, node);
}

void Client::forget(NodeId node)
{
    m_private->tell<MessageType::Forget>(node);
}

void Client::watch(NodeId node, bool values)
{
    m_private->tell<MessageType::Watch>(node, values);
}

void Client::unwatch(NodeId node)
{
    m_private->tell<MessageType::Unwatch>(node);
}

void Client::pick(double x, double y, Answer<PickResult> answer)
{
    m_private->ask<MessageType::Pick>(std::move(answer), x, y);
}

void Client::box(NodeId node, Answer<std::optional<Value>> answer)
{
    m_private->ask<MessageType::Box>(std::move(answer), node);
}

void Client::showPictures(std::uint32_t width, std::uint32_t height)
{
    m_private->tell<MessageType::ShowPictures>(width, height);
}

void Client::mark(NodeId node)
{
    m_private->tell<MessageType::Mark>(node);
}

void Client::lookFrom(const Camera& camera, Answer<bool> answer)
{
    m_private->ask<MessageType::LookFrom>(std::move(answer), camera);
}

void Client::camera(Answer<std::optional<Camera>> answer)
{
    m_private->ask<MessageType::GetCamera>(std::move(answer));
}

void Client::find(const std::string& query, std::uint32_t limit,
                  Answer<std::vector<std::vector<NodeId>>> answer)
{
    m_private->ask<MessageType::Find>(std::move(answer), query, limit);
}

void Client::showCounters(bool shown)
{
    m_private->tell<MessageType::ShowCounters>(shown);
}

void Client::showFrames(bool shown)
{
    m_private->tell<MessageType::ShowFrames>(shown);
}

void Client::showNotices(bool shown)
{
    m_private->tell<MessageType::ShowNotices>(shown);
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#include "Attachment.h"

#include "Guarded.h"

#include <scopix/live/transport/SharedPicture.h>

#include <algorithm>
#include <string_view>

namespace scopix::live
{

namespace
{

constexpr std::size_t MostWatched = 1000000;
constexpr std::size_t MostKept = 100000;
constexpr Number MostPaths = 10000;
constexpr Number MostChildren = 65536;

std::size_t hashOf(const Value& value)
{
    const auto* bytes = reinterpret_cast<const char*>(value.bytes.data());
    const std::size_t kind = static_cast<std::size_t>(value.kind) * 2 + (value.list ? 1 : 0);
    return std::hash<std::string_view>()({bytes, value.bytes.size()}) ^ (kind << 56);
}

Sentence failure(const std::string& reason)
{
    return reason.empty() ? Sentence("The program’s adapter failed: an exception of no known type.")
                          : Sentence("The program’s adapter failed: %1.", {reason});
}

Sentence refusal(const std::string& reason)
{
    return reason.empty() ? Sentence("The program could not do it: an exception of no known type.")
                          : Sentence("The program could not do it: %1.", {reason});
}

// An empty answer, and a refusal where there can be one.
template <class Answer>
Answer refused(const Sentence& refusal)
{
    Answer answer{};
    if constexpr (std::is_same_v<Answer, WriteResult> || std::is_same_v<Answer, StructureResult>)
        answer.refusal = refusal;
    return answer;
}

} // namespace

Attachment::Attachment(Adapter& adapter, Interests& interests, std::shared_ptr<Peer> peer)
    : m_adapter(adapter)
    , m_interests(interests)
    , m_peer(std::move(peer))
{
}

Attachment::~Attachment()
{
    m_interests.unmark(this);
    for (const auto& [node, watched] : m_watched)
        m_interests.unwatch(node, watched.values);
    for (const NodeId node : m_kept)
        m_interests.forget(node);
}

template <MessageType type>
void Attachment::answer(const Message& question)
{
    auto parameters = contentsOf<Parameters<type>>(question);
    if (!parameters)
        return m_peer->sendAway(
            Sentence("The inspector asked something that this program does not understand; detached."));
    using Answer = AnswerOf<type>;
    const Answer answer = guarded(
        [&]() -> Answer {
            return std::apply([this](auto&... each) { return this->ask(TypeConstant<type>(), each...); },
                              *parameters);
        },
        [this](const std::string& reason) {
            complain(failure(reason));
            return refused<Answer>(refusal(reason));
        });
    Bytes message = packedMessage(type, question.id, answer);
    if (message.size() <= LongestMessage)
        return m_peer->send({std::move(message), std::nullopt});
    complain(Sentence("The program’s adapter failed: the answer is longer than %1 MiB.",
                      {std::to_string(LongestMessage >> 20)}));
    send(type, question.id,
         refused<Answer>(Sentence("The program could not do it: the answer is too long.")));
}

template <MessageType type>
void Attachment::obey(const Message& request)
{
    auto parameters = contentsOf<Parameters<type>>(request);
    if (parameters)
        std::apply([this](auto&... each) { this->act(TypeConstant<type>(), each...); }, *parameters);
}

bool Attachment::answerOne()
{
    const std::optional<Message> question = m_peer->takeQuestion();
    if (!question)
        return false;
    forEachOf(Questions(), [&](auto type) {
        if (question->is(type()))
            answer<type()>(*question);
    });
    forEachOf(Requests(), [&](auto type) {
        if (question->is(type()))
            obey<type()>(*question);
    });
    return true;
}

Nodes Attachment::ask(TypeConstant<MessageType::Roots>)
{
    return m_adapter.roots();
}

std::optional<NodeInfo> Attachment::ask(TypeConstant<MessageType::Node>, NodeId node)
{
    return m_adapter.node(node);
}

Nodes Attachment::ask(TypeConstant<MessageType::Children>, NodeId node, Number first, Number count)
{
    return m_adapter.children(node, first, std::min(count, MostChildren));
}

std::vector<Ids> Attachment::ask(TypeConstant<MessageType::PathsTo>, NodeId node, Number limit)
{
    return m_adapter.pathsTo(node, std::min(limit, MostPaths));
}

std::vector<PropertyInfo> Attachment::ask(TypeConstant<MessageType::Properties>, NodeId node)
{
    return m_adapter.properties(node);
}

std::optional<Value> Attachment::ask(TypeConstant<MessageType::GetValue>, NodeId node, const Text& property)
{
    std::optional<Value> value = wholeValue(m_adapter.value(node, property), property);
    if (value)
        isNews(node, property, *value);
    return value;
}

// What the inspector wrote it has; the others hear of it like of any change.
WriteResult Attachment::ask(TypeConstant<MessageType::Write>, NodeId node, const Text& property,
                            const Value& value)
{
    WriteResult result = m_adapter.write(node, property, value);
    result.value = wholeValue(std::move(result.value), property).value_or(Value());
    if (result.value.kind != ValueKind::None)
        isNews(node, property, result.value);
    m_ownChanges.properties.push_back({node, property});
    return result;
}

std::vector<Text> Attachment::ask(TypeConstant<MessageType::AddableTypes>, NodeId parent)
{
    return m_adapter.addableTypes(parent);
}

StructureResult Attachment::ask(TypeConstant<MessageType::Add>, NodeId parent, Number index, const Text& type)
{
    return noted(m_adapter.add(parent, index, type), parent);
}

StructureResult Attachment::ask(TypeConstant<MessageType::Remove>, NodeId parent, Number index)
{
    if (m_kept.size() >= MostKept)
        return {false, 0,
                Sentence("The node cannot be removed: the inspector keeps too many removed nodes already.")};
    StructureResult result = noted(m_adapter.remove(parent, index), parent);
    if (result.done && m_kept.insert(result.node).second)
        m_interests.keep(result.node);
    return result;
}

StructureResult Attachment::ask(TypeConstant<MessageType::Insert>, NodeId parent, Number index, NodeId node)
{
    return noted(m_adapter.insert(parent, index, node), parent);
}

StructureResult Attachment::ask(TypeConstant<MessageType::Copy>, NodeId parent, Number index, NodeId node)
{
    return noted(m_adapter.copy(parent, index, node), parent);
}

StructureResult Attachment::noted(StructureResult result, NodeId parent)
{
    if (result.done)
        m_ownChanges.children.push_back(parent);
    return result;
}

PickResult Attachment::ask(TypeConstant<MessageType::Pick>, double x, double y)
{
    return m_adapter.pick(x, y);
}

std::optional<Value> Attachment::ask(TypeConstant<MessageType::Box>, NodeId node)
{
    return wholeValue(m_adapter.box(node), "box");
}

bool Attachment::ask(TypeConstant<MessageType::LookFrom>, const Camera& camera)
{
    return m_adapter.lookFrom(camera);
}

std::optional<Camera> Attachment::ask(TypeConstant<MessageType::GetCamera>)
{
    return m_adapter.camera();
}

std::vector<Ids> Attachment::ask(TypeConstant<MessageType::Find>, const Text& query, Number limit)
{
    return m_adapter.find(query, std::min(limit, MostPaths));
}

void Attachment::act(TypeConstant<MessageType::Forget>, NodeId node)
{
    if (m_kept.erase(node) > 0)
        m_interests.forget(node);
}

void Attachment::act(TypeConstant<MessageType::Watch>, NodeId node, bool values)
{
    const auto [watched, isNew] = m_watched.try_emplace(node);
    if (!isNew && watched->second.values == values)
        return;
    if (m_watched.size() > MostWatched)
        m_peer->sendAway(Sentence("The inspector watches too many nodes; detached."));
    m_interests.watch(node, values);
    if (!isNew)
        m_interests.unwatch(node, watched->second.values);
    watched->second.values = values;
}

void Attachment::act(TypeConstant<MessageType::Unwatch>, NodeId node)
{
    const auto watched = m_watched.find(node);
    if (watched == m_watched.end())
        return;
    m_interests.unwatch(node, watched->second.values);
    m_watched.erase(watched);
}

void Attachment::act(TypeConstant<MessageType::ShowPictures>, Number width, Number height)
{
    m_pictureWidth = std::min(width, LargestPicture);
    m_pictureHeight = std::min(height, LargestPicture);
}

void Attachment::act(TypeConstant<MessageType::PictureTaken>)
{
    m_hasPicture = false;
}

void Attachment::act(TypeConstant<MessageType::Mark>, NodeId node)
{
    m_interests.mark(node, this);
}

void Attachment::act(TypeConstant<MessageType::ShowCounters>, bool shown)
{
    m_showsCounters = shown;
}

void Attachment::act(TypeConstant<MessageType::ShowNotices>, bool shown)
{
    m_showsNotices = shown;
}

void Attachment::act(TypeConstant<MessageType::ShowFrames>, bool shown)
{
    m_showsFrames = shown;
}

std::optional<Value> Attachment::wholeValue(std::optional<Value> value, const std::string& property)
{
    if (!value || isWellFormed(*value))
        return value;
    complain(Sentence("The program’s adapter failed: the value of “%1” does not have the bytes of its kind.",
                      {property}));
    return std::nullopt;
}

bool Attachment::isNews(NodeId node, const std::string& property, const Value& value)
{
    const auto watched = m_watched.find(node);
    if (watched == m_watched.end())
        return false;
    const std::size_t hash = hashOf(value);
    const auto [told, isNew] = watched->second.told.try_emplace(property, hash);
    return isNew || std::exchange(told->second, hash) != hash;
}

void Attachment::note(const AdapterChanges& changes)
{
    m_rootsChanged |= changes.roots;
    for (const NodeId node : changes.ended)
        noteEnd(node);
    for (const NodeId node : changes.children)
        if (m_watched.count(node))
            m_children.insert(node);
    for (const AdapterChanges::Property& property : changes.properties)
        noteProperty(property);
}

void Attachment::noteEnd(NodeId node)
{
    if (m_watched.erase(node) > 0)
        m_ended.insert(node);
    m_children.erase(node);
}

void Attachment::noteProperty(const AdapterChanges::Property& property)
{
    const auto watched = m_watched.find(property.node);
    if (watched != m_watched.end() && watched->second.values)
        m_properties.emplace(property.node, property.name);
}

bool Attachment::tellOne()
{
    if (!m_peer->isIdle())
        return false;
    if (std::exchange(m_rootsChanged, false))
        send(MessageType::RootsChanged, 0);
    else if (!m_ended.empty())
        send(MessageType::NodeEnded, 0, m_ended.extract(m_ended.begin()).value());
    else if (!m_children.empty())
        send(MessageType::ChildrenChanged, 0, m_children.extract(m_children.begin()).value());
    else if (!m_properties.empty())
        tellValue(m_properties.extract(m_properties.begin()).value());
    else
        return false;
    return true;
}

void Attachment::tellValue(const std::pair<NodeId, std::string>& property)
{
    const NodeId node = property.first;
    const std::string& name = property.second;
    const auto found = m_watched.find(node);
    if (found == m_watched.end() || !found->second.values)
        return;
    std::optional<Value> value;
    guarded([&] { value = wholeValue(m_adapter.value(node, name), name); });
    if (value && value->bytes.size() < LongestMessage / 2 && isNews(node, name, *value))
        send(MessageType::ValueChanged, 0, node, name, *value);
}

bool Attachment::wantsPicture() const
{
    return m_pictureWidth > 0 && m_pictureHeight > 0 && !m_hasPicture && m_peer->isIdle();
}

void Attachment::sendPicture(const Picture& picture)
{
    m_hasPicture = true;
    m_peer->send({packedMessage(MessageType::PictureCame, 0, picture.width, picture.height), picture});
}

void Attachment::sendCounters(const std::vector<double>& values)
{
    send(MessageType::CountersCame, 0, values);
}

void Attachment::sendFrames(const FrameTable& frames)
{
    send(MessageType::FramesCame, 0, frames);
}

void Attachment::sendNotice(const Notice& notice)
{
    if (m_showsNotices && m_peer->isIdle())
        send(MessageType::NoticeCame, 0, notice);
}

void Attachment::complain(const Sentence& sentence)
{
    sendNotice({NoticeLevel::Error, sentence});
}

} // namespace scopix::live

// SPDX-License-Identifier: MIT
#pragma once

#include "Interests.h"
#include "Peer.h"

#include <scopix/live/values/LiveSentence.h>

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace scopix::live
{

/// One inspector as the program's thread sees it: it answers its questions and tells it what has changed of
/// what it watches.
class Attachment
{
public:
    Attachment(Adapter& adapter, Interests& interests, std::shared_ptr<Peer> peer);
    /// Nothing of what the inspector wanted is left behind.
    ~Attachment();
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;

    bool isGone() const { return m_peer->isGone(); }

    /// Answers the oldest question. False where none waits, or the inspector does not read.
    bool answerOne();

    /// Notes what is to be told, of what this inspector watches.
    void note(const AdapterChanges& changes);
    /// Tells one thing that was noted. False where there is none, or the inspector does not read.
    bool tellOne();

    /// What has changed by an answer, for the other inspectors; empty in most cases.
    AdapterChanges takeOwnChanges() { return std::exchange(m_ownChanges, {}); }

    bool wantsPicture() const;
    std::uint32_t pictureWidth() const noexcept { return m_pictureWidth; }
    std::uint32_t pictureHeight() const noexcept { return m_pictureHeight; }
    void sendPicture(const Picture& picture);

    bool wantsCounters() const { return m_showsCounters && m_peer->isIdle(); }
    void sendCounters(const std::vector<double>& values);
    bool wantsFrames() const { return m_showsFrames && m_peer->isIdle(); }
    void sendFrames(const FrameTable& frames);
    void sendNotice(const Notice& notice);

private:
    struct Watched {
        bool values = false;
        std::unordered_map<std::string, std::size_t> told; // hashes of the values that the inspector has
    };

    template <class... Parts>
    void send(MessageType type, std::uint32_t id, const Parts&... parts)
    {
        m_peer->send({packedMessage(type, id, parts...), std::nullopt});
    }
    template <MessageType type>
    void answer(const Message& question);
    template <MessageType type>
    void obey(const Message& request);

    Nodes ask(TypeConstant<MessageType::Roots>);
    std::optional<NodeInfo> ask(TypeConstant<MessageType::Node>, NodeId node);
    Nodes ask(TypeConstant<MessageType::Children>, NodeId node, Number first, Number count);
    std::vector<Ids> ask(TypeConstant<MessageType::PathsTo>, NodeId node, Number limit);
    std::vector<PropertyInfo> ask(TypeConstant<MessageType::Properties>, NodeId node);
    std::optional<Value> ask(TypeConstant<MessageType::GetValue>, NodeId node, const Text& property);
    WriteResult ask(TypeConstant<MessageType::Write>, NodeId node, const Text& property, const Value& value);
    std::vector<Text> ask(TypeConstant<MessageType::AddableTypes>, NodeId parent);
    StructureResult ask(TypeConstant<MessageType::Add>, NodeId parent, Number index, const Text& type);
    StructureResult ask(TypeConstant<MessageType::Remove>, NodeId parent, Number index);
    StructureResult ask(TypeConstant<MessageType::Insert>, NodeId parent, Number index, NodeId node);
    StructureResult ask(TypeConstant<MessageType::Copy>, NodeId parent, Number index, NodeId node);
    PickResult ask(TypeConstant<MessageType::Pick>, double x, double y);
    std::optional<Value> ask(TypeConstant<MessageType::Box>, NodeId node);
    bool ask(TypeConstant<MessageType::LookFrom>, const Camera& camera);
    std::optional<Camera> ask(TypeConstant<MessageType::GetCamera>);
    std::vector<Ids> ask(TypeConstant<MessageType::Find>, const Text& query, Number limit);

    void act(TypeConstant<MessageType::Forget>, NodeId node);
    void act(TypeConstant<MessageType::Watch>, NodeId node, bool values);
    void act(TypeConstant<MessageType::Unwatch>, NodeId node);
    void act(TypeConstant<MessageType::ShowPictures>, Number width, Number height);
    void act(TypeConstant<MessageType::PictureTaken>);
    void act(TypeConstant<MessageType::Mark>, NodeId node);
    void act(TypeConstant<MessageType::ShowCounters>, bool shown);
    void act(TypeConstant<MessageType::ShowNotices>, bool shown);
    void act(TypeConstant<MessageType::ShowFrames>, bool shown);

    StructureResult noted(StructureResult result, NodeId parent);
    std::optional<Value> wholeValue(std::optional<Value> value, const std::string& property);
    /// Whether it differs from what the inspector has; from now on it has this one.
    bool isNews(NodeId node, const std::string& property, const Value& value);
    void noteProperty(const AdapterChanges::Property& property);
    void noteEnd(NodeId node);
    void tellValue(const std::pair<NodeId, std::string>& property);
    void complain(const Sentence& sentence);

    Adapter& m_adapter;
    Interests& m_interests;
    std::shared_ptr<Peer> m_peer;
    std::unordered_map<NodeId, Watched> m_watched;
    std::unordered_set<NodeId> m_kept;

    // Each only once, however often it changes before it is told.
    bool m_rootsChanged = false;
    std::set<NodeId> m_ended;
    std::set<NodeId> m_children;
    std::set<std::pair<NodeId, std::string>> m_properties;
    AdapterChanges m_ownChanges;

    Number m_pictureWidth = 0;
    Number m_pictureHeight = 0;
    bool m_hasPicture = false; // that it has not taken yet
    bool m_showsCounters = false;
    bool m_showsNotices = false;
    bool m_showsFrames = false;
};

} // namespace scopix::live

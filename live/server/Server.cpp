// SPDX-License-Identifier: MIT
#include "Server.h"

#include "Attachment.h"
#include "Connections.h"
#include "Guarded.h"

#include <scopix/live/adapter/Adapter.h>

#include <algorithm>
#include <cerrno>
#include <list>

namespace scopix::live
{

namespace
{

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto TimeBetweenChanges = 15ms;
constexpr auto TimeBetweenCounters = 100ms;
constexpr auto TimeBetweenPictures = 1000ms / 15;
constexpr auto TimeForPicture = 2s; // and then it is asked for again

Introduction introductionOf(Adapter& adapter, const std::string& name)
{
    Introduction introduction;
    std::string sceneGraph;
    guarded([&] { sceneGraph = adapter.sceneGraphName(); });
    introduction.greeting =
        Greeting::ofThisProcess(name.empty() ? program_invocation_short_name : name, sceneGraph);
    guarded([&] { introduction.abilities = adapter.abilities(); });
    guarded([&] { introduction.counters = adapter.counters(); });
    return introduction;
}

/// Whether it is time again.
class Beat
{
public:
    explicit Beat(Clock::duration length)
        : m_length(length)
    {
    }
    bool isDue(Clock::time_point now)
    {
        if (now - m_last < m_length)
            return false;
        m_last = now;
        return true;
    }

private:
    Clock::duration m_length;
    Clock::time_point m_last{};
};

} // namespace

class Server::Private
{
public:
    Private(Adapter& adapter, const std::string& name)
        : m_adapter(adapter)
        , m_interests(adapter)
        , m_connections(introductionOf(adapter, name), Connections::Patience())
    {
    }
    ~Private() { detachAll(); }

    Connections& connections() noexcept { return m_connections; }
    bool isAttached() const noexcept { return !m_attachments.empty(); }
    void setBudget(double milliseconds)
    {
        m_budget = std::chrono::duration_cast<Clock::duration>(
            std::chrono::duration<double, std::milli>(std::max(milliseconds, 0.0)));
    }
    void work();

private:
    void takeAndDrop();
    void detachAll();
    bool answer(Clock::time_point end);
    void spread(Attachment& from);
    void takeChanges();
    bool tell(Clock::time_point end);
    void tellCounters();
    void tellFrames();
    void tellNotices();
    void carryPictures(Clock::time_point now);
    void askPicture(Clock::time_point now);
    template <class Step>
    bool inTurn(Clock::time_point end, Step&& step);

    Adapter& m_adapter;
    Interests m_interests;
    Connections m_connections;
    std::list<Attachment> m_attachments;
    Clock::duration m_budget = 2ms;
    Beat m_changesBeat{TimeBetweenChanges};
    Beat m_countersBeat{TimeBetweenCounters};
    Beat m_picturesBeat{TimeBetweenPictures};
    bool m_isPictureAsked = false;
    Clock::time_point m_pictureAskedAt{};
};

void Server::Private::work()
{
    takeAndDrop();
    if (m_attachments.empty())
        return;
    const auto now = Clock::now();
    const auto end = now + m_budget;
    bool isLeft = answer(end);
    if (m_changesBeat.isDue(now)) {
        takeChanges();
        tellNotices();
    }
    isLeft |= tell(end);
    if (m_countersBeat.isDue(now)) {
        tellCounters();
        tellFrames();
    }
    carryPictures(now);
    if (isLeft)
        m_connections.wakeProgram();
}

void Server::Private::takeAndDrop()
{
    const bool wereAttached = isAttached();
    m_attachments.remove_if([](const Attachment& attachment) { return attachment.isGone(); });
    auto peers = m_connections.takeNew(isAttached());
    if (wereAttached && !isAttached())
        guarded([this] { m_adapter.attached(false); });
    if (!isAttached() && !peers.empty())
        guarded([this] { m_adapter.attached(true); });
    for (std::shared_ptr<Peer>& peer : peers)
        m_attachments.emplace_back(m_adapter, m_interests, std::move(peer));
}

void Server::Private::detachAll()
{
    if (!isAttached())
        return;
    m_attachments.clear();
    guarded([this] { m_adapter.attached(false); });
}

// One step for each inspector in turn, so that none waits for another one's flood, and at least one step a
// frame. Whether there may be more to do.
template <class Step>
bool Server::Private::inTurn(Clock::time_point end, Step&& step)
{
    bool isLeft = false;
    do {
        isLeft = false;
        for (Attachment& attachment : m_attachments)
            isLeft |= step(attachment);
    } while (isLeft && Clock::now() < end);
    if (m_attachments.size() > 1)
        m_attachments.splice(m_attachments.end(), m_attachments, m_attachments.begin());
    return isLeft;
}

bool Server::Private::answer(Clock::time_point end)
{
    return inTurn(end, [this](Attachment& attachment) {
        const bool answered = attachment.answerOne();
        if (answered)
            spread(attachment);
        return answered;
    });
}

// An adapter that compares values, instead of being told of changes, may miss what was written through it.
void Server::Private::spread(Attachment& from)
{
    const AdapterChanges changes = from.takeOwnChanges();
    if (changes.properties.empty() && changes.children.empty())
        return;
    for (Attachment& attachment : m_attachments)
        attachment.note(changes);
}

void Server::Private::takeChanges()
{
    AdapterChanges changes;
    guarded([&] { changes = m_adapter.takeChanges(); });
    for (Attachment& attachment : m_attachments)
        attachment.note(changes);
    for (const NodeId node : changes.ended)
        m_interests.drop(node);
}

bool Server::Private::tell(Clock::time_point end)
{
    return inTurn(end, [](Attachment& attachment) { return attachment.tellOne(); });
}

void Server::Private::tellCounters()
{
    const auto wants = [](const Attachment& attachment) { return attachment.wantsCounters(); };
    if (std::none_of(m_attachments.begin(), m_attachments.end(), wants))
        return;
    std::vector<double> values;
    guarded([&] { values = m_adapter.counterValues(); });
    for (Attachment& attachment : m_attachments)
        if (wants(attachment))
            attachment.sendCounters(values);
}

void Server::Private::tellFrames()
{
    const auto wants = [](const Attachment& attachment) { return attachment.wantsFrames(); };
    if (std::none_of(m_attachments.begin(), m_attachments.end(), wants))
        return;
    FrameTable frames;
    guarded([&] { frames = m_adapter.takeFrames(); });
    if (frames.values.empty() || frames.columns.empty() || frames.values.size() % frames.columns.size() != 0)
        return;
    for (Attachment& attachment : m_attachments)
        if (wants(attachment))
            attachment.sendFrames(frames);
}

void Server::Private::tellNotices()
{
    std::vector<Notice> notices;
    guarded([&] { notices = m_adapter.takeNotices(); });
    for (const Notice& notice : notices)
        for (Attachment& attachment : m_attachments)
            attachment.sendNotice(notice);
}

void Server::Private::carryPictures(Clock::time_point now)
{
    if (m_isPictureAsked) {
        std::optional<Picture> picture;
        guarded([&] { picture = m_adapter.takePicture(); });
        if (picture) {
            m_isPictureAsked = false;
            for (Attachment& attachment : m_attachments)
                if (attachment.wantsPicture())
                    attachment.sendPicture(*picture);
        }
    }
    askPicture(now);
}

void Server::Private::askPicture(Clock::time_point now)
{
    if (m_isPictureAsked && now - m_pictureAskedAt < TimeForPicture)
        return;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    for (const Attachment& attachment : m_attachments) {
        if (!attachment.wantsPicture())
            continue;
        width = std::max(width, attachment.pictureWidth());
        height = std::max(height, attachment.pictureHeight());
    }
    if (width == 0 || !m_picturesBeat.isDue(now))
        return;
    m_isPictureAsked = true;
    m_pictureAskedAt = now;
    guarded([&] { m_adapter.askPicture(width, height); });
}

Server::Server(Adapter& adapter, const std::string& name)
    : m_private(std::make_unique<Private>(adapter, name))
{
}

Server::~Server() = default;

void Server::betweenFrames()
{
    if (m_private->connections().hasWork())
        m_private->work();
}

void Server::setBudget(double milliseconds)
{
    m_private->setBudget(milliseconds);
}

void Server::setWake(std::function<void()> wake)
{
    m_private->connections().setWake(std::move(wake));
}

bool Server::isAttached() const noexcept
{
    return m_private->isAttached();
}

const std::string& Server::socketPath() const noexcept
{
    return m_private->connections().path();
}

const std::string& Server::problem() const noexcept
{
    return m_private->connections().problem();
}

} // namespace scopix::live

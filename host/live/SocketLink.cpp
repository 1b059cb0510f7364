// SPDX-License-Identifier: MIT
#include "live/SocketLink.h"

#include "live/LiveSentences.h"

#include <QSocketNotifier>

namespace scopix
{

SocketLink::SocketLink()
    : m_client(*this)
{
}

SocketLink::~SocketLink()
{
    m_listener = nullptr;
    disconnect();
}

QString SocketLink::connectTo(const QString& socketPath)
{
    const live::Sentence problem = m_client.connect(socketPath.toStdString());
    if (!problem.empty())
        return toText(problem);
    m_read = new QSocketNotifier(m_client.fileDescriptor(), QSocketNotifier::Read, this);
    m_write = new QSocketNotifier(m_client.fileDescriptor(), QSocketNotifier::Write, this);
    connect(m_read, &QSocketNotifier::activated, this, &SocketLink::process);
    connect(m_write, &QSocketNotifier::activated, this, &SocketLink::process);
    asked();
    return {};
}

void SocketLink::disconnect()
{
    stop();
    m_client.disconnect();
}

void SocketLink::process()
{
    m_client.process();
    asked();
}

// Some of the questions may have to wait until the socket takes more.
void SocketLink::asked()
{
    if (!m_client.isConnected())
        stop();
    else if (m_write)
        m_write->setEnabled(m_client.wantsWrite());
}

void SocketLink::stop()
{
    for (QSocketNotifier* notifier : {m_read, m_write}) {
        if (notifier)
            notifier->setEnabled(false);
    }
}

void SocketLink::roots(Answer<std::vector<live::NodeInfo>> answer)
{
    m_client.roots(std::move(answer));
    asked();
}

void SocketLink::node(live::NodeId node, Answer<std::optional<live::NodeInfo>> answer)
{
    m_client.node(node, std::move(answer));
    asked();
}

void SocketLink::children(live::NodeId node, std::uint32_t first, std::uint32_t count,
                          Answer<std::vector<live::NodeInfo>> answer)
{
    m_client.children(node, first, count, std::move(answer));
    asked();
}

void SocketLink::properties(live::NodeId node, Answer<std::vector<live::PropertyInfo>> answer)
{
    m_client.properties(node, std::move(answer));
    asked();
}

void SocketLink::value(live::NodeId node, const std::string& property,
                       Answer<std::optional<live::Value>> answer)
{
    m_client.value(node, property, std::move(answer));
    asked();
}

void SocketLink::write(live::NodeId node, const std::string& property, const live::Value& value,
                       Answer<live::WriteResult> answer)
{
    m_client.write(node, property, value, std::move(answer));
    asked();
}

void SocketLink::addableTypes(live::NodeId parent, Answer<std::vector<std::string>> answer)
{
    m_client.addableTypes(parent, std::move(answer));
    asked();
}

void SocketLink::add(live::NodeId parent, std::uint32_t index, const std::string& type,
                     Answer<live::StructureResult> answer)
{
    m_client.add(parent, index, type, std::move(answer));
    asked();
}

void SocketLink::remove(live::NodeId parent, std::uint32_t index, Answer<live::StructureResult> answer)
{
    m_client.remove(parent, index, std::move(answer));
    asked();
}

void SocketLink::insert(live::NodeId parent, std::uint32_t index, live::NodeId node,
                        Answer<live::StructureResult> answer)
{
    m_client.insert(parent, index, node, std::move(answer));
    asked();
}

void SocketLink::copy(live::NodeId parent, std::uint32_t index, live::NodeId node,
                      Answer<live::StructureResult> answer)
{
    m_client.copy(parent, index, node, std::move(answer));
    asked();
}

void SocketLink::forget(live::NodeId node)
{
    m_client.forget(node);
    asked();
}

void SocketLink::watch(live::NodeId node, bool values)
{
    m_client.watch(node, values);
    asked();
}

void SocketLink::unwatch(live::NodeId node)
{
    m_client.unwatch(node);
    asked();
}

void SocketLink::pick(double x, double y, Answer<live::PickResult> answer)
{
    m_client.pick(x, y, std::move(answer));
    asked();
}

void SocketLink::box(live::NodeId node, Answer<std::optional<live::Value>> answer)
{
    m_client.box(node, std::move(answer));
    asked();
}

void SocketLink::camera(Answer<std::optional<live::Camera>> answer)
{
    m_client.camera(std::move(answer));
    asked();
}

void SocketLink::lookFrom(const live::Camera& camera, Answer<bool> answer)
{
    m_client.lookFrom(camera, std::move(answer));
    asked();
}

void SocketLink::find(const std::string& query, std::uint32_t limit,
                      Answer<std::vector<std::vector<live::NodeId>>> answer)
{
    m_client.find(query, limit, std::move(answer));
    asked();
}

void SocketLink::showPictures(std::uint32_t width, std::uint32_t height)
{
    m_client.showPictures(width, height);
    asked();
}

void SocketLink::mark(live::NodeId node)
{
    m_client.mark(node);
    asked();
}

void SocketLink::showCounters(bool shown)
{
    m_client.showCounters(shown);
    asked();
}

void SocketLink::showNotices(bool shown)
{
    m_client.showNotices(shown);
    asked();
}

void SocketLink::showFrames(bool shown)
{
    m_client.showFrames(shown);
    asked();
}

void SocketLink::rootsChanged()
{
    if (m_listener)
        m_listener->rootsChanged();
}

void SocketLink::childrenChanged(live::NodeId node)
{
    if (m_listener)
        m_listener->childrenChanged(node);
}

void SocketLink::nodeEnded(live::NodeId node)
{
    if (m_listener)
        m_listener->nodeEnded(node);
}

void SocketLink::valueChanged(live::NodeId node, const std::string& property, const live::Value& value)
{
    if (m_listener)
        m_listener->valueChanged(node, property, value);
}

void SocketLink::pictureCame(const live::Picture& picture)
{
    if (m_listener)
        m_listener->pictureCame(picture);
}

void SocketLink::countersCame(const std::vector<double>& values)
{
    if (m_listener)
        m_listener->countersCame(values);
}

void SocketLink::noticeCame(const live::Notice& notice)
{
    if (m_listener)
        m_listener->noticeCame(notice);
}

void SocketLink::framesCame(const live::FrameTable& frames)
{
    if (m_listener)
        m_listener->framesCame(frames);
}

void SocketLink::ended(const live::Sentence& reason)
{
    stop();
    if (m_listener)
        m_listener->ended(reason);
}

} // namespace scopix

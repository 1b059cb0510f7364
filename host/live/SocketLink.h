// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveLink.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace scopix
{

/// A LiveLink over a program's socket, served by the event loop. GUI thread only.
class SocketLink : public QObject, public LiveLink, private live::ClientListener
{
    Q_OBJECT

public:
    SocketLink();
    ~SocketLink() override;

    /// Empty where it is attached, else a sentence that says why not. Call it once.
    QString connectTo(const QString& socketPath);

    void setListener(live::ClientListener* listener) override { m_listener = listener; }
    void disconnect() override;

    double secondsWaiting() const override { return m_client.secondsWaiting(); }
    const live::Program& program() const override { return m_client.program(); }
    const live::Abilities& abilities() const override { return m_client.abilities(); }
    const std::vector<live::CounterInfo>& counters() const override { return m_client.counters(); }

    void roots(Answer<std::vector<live::NodeInfo>> answer) override;
    void node(live::NodeId node, Answer<std::optional<live::NodeInfo>> answer) override;
    void children(live::NodeId node, std::uint32_t first, std::uint32_t count,
                  Answer<std::vector<live::NodeInfo>> answer) override;
    void properties(live::NodeId node, Answer<std::vector<live::PropertyInfo>> answer) override;
    void value(live::NodeId node, const std::string& property,
               Answer<std::optional<live::Value>> answer) override;
    void write(live::NodeId node, const std::string& property, const live::Value& value,
               Answer<live::WriteResult> answer) override;
    void addableTypes(live::NodeId parent, Answer<std::vector<std::string>> answer) override;
    void add(live::NodeId parent, std::uint32_t index, const std::string& type,
             Answer<live::StructureResult> answer) override;
    void remove(live::NodeId parent, std::uint32_t index, Answer<live::StructureResult> answer) override;
    void insert(live::NodeId parent, std::uint32_t index, live::NodeId node,
                Answer<live::StructureResult> answer) override;
    void copy(live::NodeId parent, std::uint32_t index, live::NodeId node,
              Answer<live::StructureResult> answer) override;
    void forget(live::NodeId node) override;
    void watch(live::NodeId node, bool values) override;
    void unwatch(live::NodeId node) override;
    void pick(double x, double y, Answer<live::PickResult> answer) override;
    void box(live::NodeId node, Answer<std::optional<live::Value>> answer) override;
    void camera(Answer<std::optional<live::Camera>> answer) override;
    void lookFrom(const live::Camera& camera, Answer<bool> answer) override;
    void find(const std::string& query, std::uint32_t limit,
              Answer<std::vector<std::vector<live::NodeId>>> answer) override;
    void showPictures(std::uint32_t width, std::uint32_t height) override;
    void mark(live::NodeId node) override;
    void showCounters(bool shown) override;
    void showNotices(bool shown) override;
    void showFrames(bool shown) override;

private:
    void process();
    void asked();
    void stop();

    void rootsChanged() override;
    void childrenChanged(live::NodeId node) override;
    void nodeEnded(live::NodeId node) override;
    void valueChanged(live::NodeId node, const std::string& property, const live::Value& value) override;
    void pictureCame(const live::Picture& picture) override;
    void countersCame(const std::vector<double>& values) override;
    void noticeCame(const live::Notice& notice) override;
    void framesCame(const live::FrameTable& frames) override;
    void ended(const live::Sentence& reason) override;

    live::ClientListener* m_listener = nullptr;
    live::Client m_client;
    QSocketNotifier* m_read = nullptr;
    QSocketNotifier* m_write = nullptr;
};

} // namespace scopix

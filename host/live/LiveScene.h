// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveAdditions.h"
#include "live/LiveChildEdits.h"
#include "live/LiveEdits.h"
#include "live/LiveFetching.h"
#include "live/LiveFolding.h"
#include "live/LiveLink.h"
#include "live/LiveNode.h"
#include "live/LiveWays.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <list>
#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace scopix
{

class HostServices;

/// The scene of a running program as nodes of ours: nodes come when their parent is unfolded, values when a
/// node is selected. Values that the program changes are shown and are no edits; edits go to the program
/// through LiveEdits and LiveChildEdits. When the program ends, the nodes stay and refuse edits. Owns the
/// link. GUI thread only.
class LiveScene : public QObject, private live::ClientListener
{
    Q_OBJECT

public:
    enum class State { Attached, Silent, Ended };

    /// `services` must outlive it.
    LiveScene(std::unique_ptr<LiveLink> link, HostServices& services);
    ~LiveScene() override;

    SoNode* getRoot() const { return m_root.get(); }
    LiveNode& getRootNode() const { return *m_root; }
    /// Null where it is not here.
    LiveNode* findNode(live::NodeId id) const;
    LiveLink& getLink() { return *m_link; }
    LiveEdits& getEdits() { return m_edits; }
    LiveChildEdits& getChildEdits() { return m_childEdits; }
    LiveAdditions& getAdditions() { return m_additions; }
    LiveFetching& getFetching() { return m_fetching; }
    LiveWays& getWays() { return m_ways; }
    State getState() const { return m_state; }
    /// Why it has ended, in a sentence.
    const QString& getEnd() const { return m_end; }
    /// The program's name, as a line of text.
    QString getName() const;
    /// Living nodes that stand for something of the program.
    std::size_t getNodeCount() const { return m_nodes.size(); }

    /// What is selected is followed, marked in the program, and its values are shown.
    void follow(const QList<SoFieldContainer*>& selected);
    /// Its fields are here, with the program's values.
    void whenShown(LiveNode& node, const std::function<void()>& act);
    /// Nobody shows its children any more.
    void fold(LiveNode& node);
    /// Ends the attachment; the nodes stay.
    void detach();
    /// Its steps are in the undo history, and it is what is selected in; as at first.
    void setInFront(bool isInFront);
    bool isInFront() const { return m_isInFront; }
    /// For what makes or takes back a step: at once, or as soon as it is in front.
    void whenInFront(const std::function<void()>& act);
    /// The program has not answered for a while, or does so again.
    void setSilent(bool isSilent);

    // --- For the nodes
    void fieldWritten(LiveNode& node, SoField& field);
    void childrenWritten(LiveNode& node);
    QString refusalOf(const LiveNode& node) const;
    QString structureRefusalOf(const LiveNode& node) const;
    void forget(LiveNode& node);

    // --- For the edits
    /// Shows a value of the program, which is no edit.
    void show(LiveProperty& property, const live::Value& value);
    /// What `act` does to the nodes comes from the program.
    void apply(const std::function<void()>& act);
    /// The same for a step of the history that the program has made or refused already.
    void takeBack(const std::function<void()>& act);
    SoRef<LiveNode> nodeFor(const live::NodeInfo& info);
    /// The program keeps the node, which we have removed, until that is destroyed here.
    void noteKept(live::NodeId id);
    /// Its children are shown.
    void watchChildren(LiveNode& node);
    /// They are not shown any more.
    void watchLess(LiveNode& node);

signals:
    void stateChanged();
    /// A sentence for the user, good to know.
    void told(const QString& sentence);
    /// Fields came for a node that is selected: what shows it has to look again.
    void fieldsCame(SoFieldContainer* node);
    /// What the field list says of this field.
    void remarked(SoField* field);
    void pictureShown(const QImage& picture);
    /// New nodes that the user has asked for.
    void inserted(const QList<SoPath>& paths);
    void countersRead(const std::vector<double>& values);

private:
    using NodeRef = SoRef<LiveNode>;

    void watch(LiveNode& node, bool values);
    void unwatch(LiveNode& node);
    bool isShown(const LiveNode& node) const;

    void show(LiveNode& node);
    void fetchValues(LiveNode& node, const std::function<void()>& then);
    void valueCame(LiveNode& node, LiveProperty& property, const std::optional<live::Value>& value);
    void keepShown(LiveNode& node);

    void rootsChanged() override;
    void childrenChanged(live::NodeId node) override;
    void nodeEnded(live::NodeId node) override;
    void valueChanged(live::NodeId node, const std::string& property, const live::Value& value) override;
    void pictureCame(const live::Picture& picture) override;
    void countersCame(const std::vector<double>& values) override;
    void noticeCame(const live::Notice& notice) override;
    void framesCame(const live::FrameTable& frames) override;
    void ended(const live::Sentence& reason) override;
    void end(const QString& reason);

    HostServices& m_services;
    std::unique_ptr<LiveLink> m_link;
    std::unordered_map<live::NodeId, LiveNode*> m_nodes;
    std::unordered_set<LiveNode*> m_unnumbered; // the root, and what stands for a node within itself
    LiveEdits m_edits;
    LiveChildEdits m_childEdits;
    LiveAdditions m_additions;
    LiveFetching m_fetching{*this};
    LiveWays m_ways{*this};
    LiveFolding m_folding{*this};
    QTimer m_foldsSoon;
    std::vector<live::NodeId> m_folded; // to be let go from the event loop
    State m_state = State::Attached;
    QString m_end;
    bool m_isApplying = false;
    std::list<LiveNode*> m_shown; // their values are watched; the latest first
    std::vector<std::function<void()>> m_forFront;
    bool m_isInFront = true;
    live::NodeId m_marked = 0;
    NodeRef m_root; // which notifies the scene as soon as it has a name
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>
#include <xsg/files/SceneFault.h>
#include <xsg/values/SbValueText.h>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// What the fields of a scene that is being read refer to: nodes, by their labels, and fields that they are
/// connected from. Is collected while the nodes come, and made once all of them are there, a piece at a time.
/// Belongs to the graph's thread.
class SceneReferences
{
public:
    using Place = SceneText::Place;

    /// `fault` must outlive it, and has what is wrong when something returns false.
    explicit SceneReferences(SceneFault& fault)
        : m_fault(fault)
    {
    }

    /// False where the label is another node's.
    bool addLabel(const std::string& label, const SoRef<SoNode>& node);
    /// The labels are the places in this list, which must outlive it.
    void useNumbers(const std::vector<SoNode*>& nodes) { m_numbered = &nodes; }
    bool hasNumbers() const { return m_numbered != nullptr; }
    /// Null where no node has the label.
    SoNode* find(const std::string& label) const;
    void forgetLabels() { m_labels.clear(); }

    /// The text of a field of nodes.
    void addNodes(SoField* field, std::string text, Place place);
    void addConnection(SoField* field, std::string label, SbName sourceName, Place place);

    /// Makes the next piece; false on an error.
    bool step();
    bool isDone() const { return m_phase == Phase::Done; }
    /// A scene that is given up must not keep itself alive: its fields refer to no nodes any more.
    void release();

    /// Instead of making them, of a single field: what its nodes are written as where it stands alone; the
    /// given text where it has none. False on an error.
    bool textOfNodes(SbString& text);
    bool hasConnection() const { return !m_connections.empty(); }
    /// What the only connection comes from; null on an error.
    SoField* findSource();
    bool connect() { return connect(&m_connections.front()); }

private:
    enum class Phase { Nodes, Sources, Order, Connections, Values, Done };
    struct NodeValue {
        SoField* field;
        std::string text;
        Place place;
    };
    struct Connection {
        SoField* field;
        std::string label;
        SbName sourceName;
        Place place;
        SoField* source;
        SbString value; // as written; null where it was not
    };

    template <class Items, class Act>
    bool nextOf(Items& items, Phase after, Act act);
    bool resolve(const NodeValue& wanted);
    bool readNode(TextReader& in, SoRef<SoNode>& node) const;
    bool findSource(Connection& wanted);
    bool orderSourcesFirst(const Connection& connection);
    bool connect(const Connection* wanted);
    bool restoreValue(const Connection& made);

    SceneFault& m_fault;
    Phase m_phase = Phase::Nodes;
    std::size_t m_next = 0; // of what the phase goes through
    std::unordered_map<std::string, SoRef<SoNode>> m_labels;
    const std::vector<SoNode*>* m_numbered = nullptr;
    std::deque<NodeValue> m_nodeValues;
    std::deque<Connection> m_connections;
    std::unordered_map<const SoField*, const Connection*> m_unordered;
    std::vector<const Connection*> m_sourcesFirst;
};

} // namespace xsg

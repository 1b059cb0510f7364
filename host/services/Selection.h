// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <unordered_set>
#include <vector>

class SoField;
class SoFieldContainer;
class SoNode;
class SoPath;

namespace scopix
{

/// The nodes and the field that the user has selected. The node that was selected last is the current one,
/// which editors show. A new selection is reported only after all receivers have handled the one before, and
/// what is destroyed is dropped before its memory is freed. Keeps no node alive. GUI thread only.
class Selection : public QObject
{
    Q_OBJECT

public:
    /// A selected node and the way to it from the root; empty where that is not known.
    struct Place {
        SoFieldContainer* node = nullptr;
        std::vector<SoNode*> way;
    };

    explicit Selection(QObject* parent = nullptr);

    /// Null selects nothing. The same node may be selected again and is reported again; its selected field
    /// stays.
    void select(SoFieldContainer* node);
    /// All of them; the last is the current one. A node counts once, at the last of its places here.
    void select(const std::vector<SoPath>& paths);
    void select(const std::vector<SoFieldContainer*>& nodes);
    /// Selects the field's node too, when it is not the current one. Null drops the field and keeps the
    /// nodes.
    void select(SoField* field);
    void clear();
    /// Reports the present selection once more.
    void reemit();
    /// The container is about to be destroyed.
    void forget(const SoFieldContainer* dying);

    SoFieldContainer* node() const { return m_node; }
    SoField* field() const { return m_field; }
    /// In the order in which they were selected.
    const std::vector<Place>& places() const { return m_places; }
    /// Whether it is selected now, or was before the change that is being reported right now.
    bool isOrWasSelected(const SoFieldContainer* node) const;

    /// What was selected before the change that is being reported right now: edits that are applied meanwhile
    /// belong to it. The present selection between changes.
    SoFieldContainer* lastNode() const { return m_telling ? m_formerNode : m_node; }
    SoField* lastField() const { return m_telling ? m_formerField : m_field; }

signals:
    void nodeChanged(SoFieldContainer* node);
    void fieldChanged(SoField* field);
    /// After each of these: what is selected may be other nodes than before.
    void changed();

private:
    struct Request {
        enum Kind { Node, Field, Again } kind;
        SoFieldContainer* node = nullptr;
        SoField* field = nullptr;
        std::vector<Place> places; // the last is of the node
    };
    using Nodes = std::unordered_set<const SoFieldContainer*>;

    void select(std::vector<Place> places);
    std::vector<Place> placesOf(const Request& request) const;
    void setPlaces(std::vector<Place> places);
    void request(const Request& request);
    void process(const Request& request);
    void change(const Request& to, bool tellNode);

    std::vector<Place> m_places;
    Nodes m_nodes; // of m_places
    Nodes m_formerNodes;
    SoFieldContainer* m_node = nullptr;
    SoField* m_field = nullptr;
    SoFieldContainer* m_formerNode = nullptr;
    SoField* m_formerField = nullptr;
    std::vector<Request> m_requests; // that came while another was reported
    bool m_telling = false;
};

} // namespace scopix

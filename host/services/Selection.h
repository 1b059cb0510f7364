// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class SoField;
class SoFieldContainer;

namespace scopix
{

/// The node and the field that the user has selected. A new selection is reported only after all receivers
/// have handled the one before, and what is destroyed is dropped before its memory is freed. Keeps no node
/// alive. GUI thread only.
class Selection : public QObject
{
    Q_OBJECT

public:
    explicit Selection(QObject* parent = nullptr);

    /// Null selects nothing. The same node may be selected again and is reported again; its selected field
    /// stays.
    void select(SoFieldContainer* node);
    /// Selects the field's node too, when it is another one. Null drops the field and keeps the node.
    void select(SoField* field);
    void clear();
    /// Reports the present selection once more.
    void reemit();
    /// The container is about to be destroyed.
    void forget(const SoFieldContainer* dying);

    SoFieldContainer* node() const { return m_node; }
    SoField* field() const { return m_field; }

    /// What was selected before the change that is being reported right now: edits that are applied meanwhile
    /// belong to it. The present selection between changes.
    SoFieldContainer* lastNode() const { return m_telling ? m_formerNode : m_node; }
    SoField* lastField() const { return m_telling ? m_formerField : m_field; }

signals:
    void nodeChanged(SoFieldContainer* node);
    void fieldChanged(SoField* field);

private:
    struct Request {
        enum Kind { Node, Field, Again } kind;
        SoFieldContainer* node = nullptr;
        SoField* field = nullptr;
    };
    void request(const Request& request);
    void process(const Request& request);
    void change(const Request& to, bool tellNode);

    SoFieldContainer* m_node = nullptr;
    SoField* m_field = nullptr;
    SoFieldContainer* m_formerNode = nullptr;
    SoField* m_formerField = nullptr;
    std::vector<Request> m_requests; // that came while another was reported
    bool m_telling = false;
};

} // namespace scopix

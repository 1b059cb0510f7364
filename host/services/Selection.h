// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <vector>

class SoField;
class SoFieldContainer;

namespace scopix
{

/// The node and the field that the person has selected. Tells of a new selection only after what was told
/// before has been heard by everybody, and drops what goes away before its memory does. Keeps no node alive.
/// GUI thread only.
class Selection : public QObject
{
    Q_OBJECT

public:
    explicit Selection(QObject* parent = nullptr);

    /// Null selects nothing. The same node may be selected again and is told again; its selected field stays.
    void select(SoFieldContainer* node);
    /// Selects the field's node too, when it is another one. Null drops the field and keeps the node.
    void select(SoField* field);
    void clear();
    /// Tells the present selection once more.
    void reemit();
    /// The container is about to go.
    void forget(const SoFieldContainer* dying);

    SoFieldContainer* node() const { return m_node; }
    SoField* field() const { return m_field; }

    /// What was selected until the change that is being told right now: edits that are applied while it is
    /// let go belong to it. The present selection between changes.
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
    std::vector<Request> m_requests; // that came while another was told
    bool m_telling = false;
};

} // namespace scopix

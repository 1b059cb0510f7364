// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleDrag.h"
#include "handles/HandleSubject.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace scopix
{

class HandleEdit;
class SceneStates;

/// What the handles change of what is selected: the node where they are, and the others that are moved along
/// with it by the same amounts. GUI thread only.
class HandleGroup
{
    Q_DECLARE_TR_FUNCTIONS(scopix::HandleGroup)

public:
    /// Of these paths what can be changed in this way. `states` tells what is locked; null: nothing is.
    void find(const QList<SoPath>& selected, HandleMode mode, const SceneStates* states);
    const QList<SoPath>& getSelected() const { return m_selected; }
    /// Why there are no handles for what is locked; empty where nothing is.
    const QString& getRefusal() const { return m_refusal; }
    /// Where the handles are; null where there are none.
    const HandleTarget* getTarget() const { return m_main.target.get(); }
    bool canBeDragged() const { return m_main.target && m_main.target->can(m_mode); }
    int getCount() const { return m_main.target ? 1 + static_cast<int>(m_others.size()) : 0; }
    /// A sentence on what the handles act on, or why there are none; empty where that is plain to see.
    QString describe() const;
    /// Of the part, or of how many nodes there are.
    QString getName() const;
    QString getPartName() const;
    /// Transforms that a drag puts above parts that have none.
    std::vector<std::shared_ptr<AddedTransform>> getAdded() const;

    void beginDrags(HandlePart part, bool ofWorld, const ViewSight& sight, const QPointF& place);
    /// Of the node where the handles are; null while nothing is dragged.
    const HandleDrag* getDrag() const { return m_main.drag.get(); }
    HandleDrag::Amounts getNothing() const { return {m_main.drag->getNothing(), m_main.drag->getNothing()}; }
    void apply(const HandleDrag::Amounts& amounts) const;
    void addTo(HandleEdit& edit) const;
    void endDrags();

private:
    struct Member {
        HandleSubject subject;
        std::unique_ptr<HandleTarget> target;
        std::shared_ptr<AddedTransform> added; // not yet in the scene, unless it is being dragged
        std::unique_ptr<HandleDrag> drag;      // null for what this drag leaves alone
    };

    static Member makeMember(const HandleSubject& subject);
    void chooseMain(std::vector<Member> all);

    HandleMode m_mode = HandleMode::Select;
    QList<SoPath> m_selected;
    QString m_refusal;
    Member m_main;                // where the handles are
    std::vector<Member> m_others; // moved along with it
};

} // namespace scopix

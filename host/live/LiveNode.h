// SPDX-License-Identifier: MIT
#pragma once

#include "structure/MirroredNode.h"

#include <scopix/live/adapter/Adapter.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <functional>
#include <map>

namespace scopix
{

class LiveScene;

/// A property of a node of a running program, with the field that shows it.
struct LiveProperty {
    live::PropertyInfo info;
    std::unique_ptr<SoField> field; // null: it only refers to objects
    live::Value known;              // as the program has it; of no kind as long as that is not known
    bool isSent = false;            // written to the program, which has not answered yet
    bool isWritten = false;         // by an edit that has not been sent yet
    bool isChanged = false;         // by an edit, in this session
    QString remark;                 // what became of the last edit, other than what was asked for
    /// Values that the program had, by what is left of them in a field: undoing gives back every bit.
    std::map<std::vector<std::uint8_t>, live::Value> exact;
};

/// Stands for a node, or another object with properties, of a running program. Fields come with the
/// properties, when the node is shown first, and stay as long as the node; children come when they are asked
/// for: first the objects that properties refer to, then the program's own children. Its type has the name
/// that the program gives it. What is written to its fields by anybody but its LiveScene goes to the program.
/// May outlive its LiveScene, and is then nothing but what it last showed. GUI thread only.
class LiveNode final : public SoTyped<LiveNode, SoGroup>, public MirroredNode
{
public:
    static constexpr const char* ClassName = "LiveNode";

    enum class Fetched { No, Asked, Yes };

    LiveNode(LiveScene& scene, const live::NodeInfo& info);

    /// Of nodes that a program calls so.
    static SoType typeFor(const std::string& programType);
    SoType getTypeId() const override { return m_type; }
    void notify(const SoNotification& change) override;

    live::NodeId getId() const { return m_info.id; }
    const live::NodeInfo& getInfo() const { return m_info; }
    /// Null once that is gone.
    LiveScene* getScene() const { return m_scene; }

    std::vector<std::unique_ptr<LiveProperty>>& getProperties() { return m_properties; }
    LiveProperty* findProperty(const SoField& field) const;
    LiveProperty* findProperty(const std::string& name) const;
    /// Makes the fields. Names that come twice count once.
    void setProperties(const std::vector<live::PropertyInfo>& properties);

    bool mayHaveMoreChildren() const override;
    void fetchChildren() override;
    bool canHaveChildren() const override { return m_info.canHaveChildren; }
    int countObjects() const override { return static_cast<int>(m_objects.size()); }
    bool isShared() const override { return m_info.parentCount > 1; }
    void askTypesToAdd(const AnswerTypes& answer) override;
    void actInProgram(const MirroredAct& act) override;
    QString refusal() const override;
    QString structureRefusal() const override;
    QString remarkOn(const SoField& field) const override;

private:
    friend class LiveScene;
    friend class LiveChildEdits;
    friend class LiveEdits;
    friend class LiveAdditions;
    friend class LiveFetching;
    friend class LiveFolding;
    friend class LiveWays;
    ~LiveNode() override;
    void update(const live::NodeInfo& info);
    /// By somebody other than the program.
    bool isRenamed() const;
    /// Whoever shows its children looks again.
    void touch();

    LiveScene* m_scene;
    live::NodeInfo m_info;
    SoType m_type;
    std::vector<std::unique_ptr<LiveProperty>> m_properties;

    // What LiveScene keeps of it.
    Fetched m_propertiesFetched = Fetched::No;
    Fetched m_childrenFetched = Fetched::No;
    bool m_hasEnded = false;
    bool m_hasObjects = false; // what its properties refer to is among its children
    bool m_isWatched = false;  // the program tells of it
    bool m_isOutdated = false; // children that are being fetched: they were edited since
    bool m_isKept = false;     // the program keeps it for us, since we removed it
    bool m_isEdited = false;   // one of its fields was, at any time
    bool m_areChildrenEdited = false;
    bool m_isAskedAgain = false;          // children, while they are being fetched
    std::vector<SoRef<SoNode>> m_objects; // the first of the children
    std::vector<SoRef<SoNode>> m_fetched; // of the others
    std::vector<SoNode*> m_told;          // children as the program has them
    std::vector<std::function<void()>> m_onProperties;
};

} // namespace scopix

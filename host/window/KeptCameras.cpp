// SPDX-License-Identifier: MIT
#include "window/KeptCameras.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSwitch.h>

namespace scopix
{

namespace
{

class AddChildCommand : public SpxCommand, public SpxEditedFields
{
public:
    AddChildCommand(SoGroup& group, SoNode* child)
        : m_group(&group)
        , m_child(child)
    {
    }
    void execute() override { redo(); }
    void undo() override { m_group->removeChild(m_group->findChild(m_child.get())); }
    void redo() override { m_group->addChild(m_child.get()); }
    std::vector<SoField*> editedFields() const override { return {}; }
    std::vector<SoFieldContainer*> editedContainers() const override { return {m_group, m_child.get()}; }

private:
    SoGroup* m_group; // the host drops the command with it
    SoRef<SoNode> m_child;
};

SbName freeName(SoNode& root)
{
    for (int number = 1;; ++number) {
        const SbName name(("View" + std::to_string(number)).c_str());
        SoSearchAction search;
        search.setName(name);
        if (!search.find(&root))
            return name;
    }
}

} // namespace

std::vector<SoPath> findCameras(SoNode* root)
{
    SoSearchAction search;
    search.setType(SoCamera::getClassTypeId());
    search.setLimit(-1);
    return root ? search.apply(root) : std::vector<SoPath>();
}

// What stands before it on the way, whatever a switch chooses.
SceneCamera cameraAt(const SoPath& path)
{
    SoState state;
    for (int i = 0; i + 1 < path.getLength(); ++i) {
        const SoGroup& group = *path.getNode(i)->asGroup();
        group.apply(state);
        const bool choosesOne = dynamic_cast<const SoSwitch*>(&group) != nullptr;
        for (SoNode* child : group.getChildren()) {
            if (child == path.getNode(i + 1))
                break;
            if (!choosesOne && !child->asGroup() && !child->asShape())
                child->apply(state);
        }
    }
    SceneCamera found;
    found.camera = SoRef<SoCamera>(dynamic_cast<SoCamera*>(path.getTail()));
    found.toWorld = state.modelMatrix;
    return found;
}

std::unique_ptr<SpxCommand> makeKeepCamera(SoGroup& root, SoCamera& camera)
{
    SoRef<SoCamera> copy(new SoPerspectiveCamera);
    SceneCamera original;
    original.camera = SoRef<SoCamera>(&camera);
    matchCamera(original, LeastAspect, copy);
    copy->setName(freeName(root));
    auto* choice = new SoSwitch;
    choice->addChild(copy.get());
    return std::make_unique<AddChildCommand>(root, choice);
}

} // namespace scopix

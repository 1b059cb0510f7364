// SPDX-License-Identifier: MIT
#include "export/SceneMotion.h"

#include "export/ExportNames.h"

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <unordered_set>

namespace scopix
{

SceneMotion::SceneMotion(SoNode& root)
{
    std::unordered_set<const SoNode*> met;
    std::vector<SoNode*> open{&root};
    while (!open.empty()) {
        SoNode& node = *open.back();
        open.pop_back();
        if (!met.insert(&node).second)
            continue;
        note(node);
        if (const SoGroup* group = node.asGroup())
            open.insert(open.end(), group->getChildren().rbegin(), group->getChildren().rend());
    }
}

void SceneMotion::note(SoNode& node)
{
    if (isA<SoAnimation>(node))
        m_clips.push_back(static_cast<SoAnimation*>(&node));
    if (isA<SoTrack>(node)) {
        const SoNode* target = static_cast<const SoTrack&>(node).target.getNode();
        if (target && isA<SoTransform>(*target) && isPlain(static_cast<const SoTransform&>(*target)))
            m_movers.insert(target);
    }
    if (!isA<SoSkin>(node))
        return;
    const auto& skin = static_cast<const SoSkin&>(node);
    for (int i = 0; i < skin.bones.getNum(); ++i) {
        if (skin.bones[i])
            m_movers.insert(skin.bones[i].get());
    }
}

bool isPlain(const SoTransform& transform)
{
    const bool isCentred = transform.center.isIgnored() || transform.center.getValue() == SbVec3f();
    const bool isStraight =
        transform.scaleOrientation.isIgnored() || transform.scaleOrientation.getValue() == SbRotation();
    const bool isWhole = !transform.translation.isIgnored() && !transform.rotation.isIgnored() &&
                         !transform.scaleFactor.isIgnored();
    return isCentred && isStraight && isWhole;
}

} // namespace scopix

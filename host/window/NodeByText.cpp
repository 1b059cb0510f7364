// SPDX-License-Identifier: MIT
#include "window/NodeByText.h"

#include "panels/SceneTreeView.h"
#include "text/NodeText.h"

#include <xsg/actions/SoSearchAction.h>
#include <xsg/paths/ChildTable.h>

namespace scopix
{

namespace
{

// Of a path from the root; null where there is no such place.
SoNode* findPlace(SoNode* root, const QString& text)
{
    const SoScenePath path(text.toStdString());
    SbSentence problem;
    return root && path.isValid() ? xsg::SceneLookup(root).find(path, problem) : nullptr;
}

// To the first node, from the top, that has this name, or else this type.
SoPath findNode(SoNode* root, const QString& text)
{
    SoSearchAction byName;
    byName.setName(toName(text));
    if (!byName.apply(root).empty())
        return byName.getPaths().front();
    for (const QString& name : {text, OtherProgramPrefix + text}) {
        SoSearchAction byType;
        const SoType type = SoType::fromName(toName(name));
        byType.setType(type);
        if (!type.isBad() && !byType.apply(root).empty())
            return byType.getPaths().front();
    }
    return {};
}

} // namespace

SoPath pathByText(const SceneTreeView& tree, SoNode* root, const QString& text)
{
    const SoNode* place = text.startsWith(QLatin1Char('/')) ? findPlace(root, text) : nullptr;
    return place ? tree.pathTo(place) : findNode(root, text);
}

} // namespace scopix

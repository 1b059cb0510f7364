// SPDX-License-Identifier: MIT
#include "panel/NearbyNodes.h"

#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/transforms/SoTransformation.h>

#include <algorithm>
#include <optional>

namespace inspector
{

namespace
{

constexpr int MostLookedAt = 20000;

class Search
{
public:
    Search()
        : m_types{SoMaterial::getClassTypeId(),  SoTransformation::getClassTypeId(),
                  SoTexture2::getClassTypeId(),  SoTextureTransform::getClassTypeId(),
                  SoDrawStyle::getClassTypeId(), SoComplexity::getClassTypeId(),
                  SoPoints::getClassTypeId(),    SoNormals::getClassTypeId()}
        , m_found(m_types.size())
    {
    }

    // The children before `end`, in order: the later one takes the place of the earlier one.
    void lookAt(const SoPath& above, const SoGroup& group, const SoNode* end)
    {
        for (SoNode* child : group.getChildren()) {
            if (child == end || ++m_lookedAt > MostLookedAt)
                return;
            SoPath path = above;
            path.append(child);
            // What a plain group sets is seen by what follows it.
            if (child->getTypeId() == SoGroup::getClassTypeId())
                lookAt(path, *child->asGroup(), nullptr);
            else
                take(path);
        }
    }

    std::vector<SoPath> results() const
    {
        std::vector<SoPath> all;
        for (const SoPath& path : m_found) {
            if (!path.isEmpty())
                all.push_back(path);
        }
        return all;
    }

private:
    void take(const SoPath& path)
    {
        for (std::size_t i = 0; i < m_types.size(); ++i) {
            if (path.getTail()->getTypeId().isDerivedFrom(m_types[i]))
                m_found[i] = path;
        }
    }

    std::vector<SoType> m_types;
    std::vector<SoPath> m_found;
    int m_lookedAt = 0;
};

} // namespace

std::vector<SoPath> nearbyNodes(const SoPath& path)
{
    Search search;
    SoPath above;
    for (int i = 0; i < path.getLength(); ++i) {
        above.append(path.getNode(i));
        const SoGroup* group = path.getNode(i)->asGroup();
        if (group)
            search.lookAt(above, *group, path.getNode(i + 1));
    }
    const bool governs = !path.isEmpty() && (path.getTail()->asShape() || path.getTail()->asGroup());
    return governs ? search.results() : std::vector<SoPath>();
}

} // namespace inspector

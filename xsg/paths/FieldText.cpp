// SPDX-License-Identifier: MIT
#include <xsg/paths/FieldText.h>

#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

namespace
{

std::string referenceText(const SoNode* node, xsg::NodePlaces& places)
{
    return node && places.has(*node) ? places.pathOf(*node).toText() : "NULL";
}

} // namespace

std::string xsg::fieldText(const SoField& field, NodePlaces& places)
{
    if (const auto* single = dynamic_cast<const SoSFNode*>(&field))
        return referenceText(single->getNode(), places);
    const auto* list = dynamic_cast<const SoMFNode*>(&field);
    if (!list) {
        SbString text;
        SoAnimatedValues::getInstance().getRest(field).get(text);
        return text.str();
    }
    std::string text = "[ ";
    for (int i = 0; i < list->getNum(); ++i)
        text += (i > 0 ? ", " : "") + referenceText((*list)[i].get(), places);
    return text + (list->getNum() > 0 ? " ]" : "]");
}

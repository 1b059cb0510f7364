// SPDX-License-Identifier: MIT
#include "ExtraProperties.h"

#include "Extras.h"

namespace scopix::live
{

OsgProperties makeExtraProperties(const osg::Object& object)
{
    OsgProperties properties;
    addMaterial(properties, object);
    addStateSet(properties, object);
    addTexture(properties, object);
    addImage(properties, object);
    addGroups(properties, object);
    addGeometry(properties, object);
    addTexts(properties, object);
    addData(properties, object);
    return properties;
}

} // namespace scopix::live

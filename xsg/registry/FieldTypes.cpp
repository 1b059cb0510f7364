// SPDX-License-Identifier: MIT
#include <xsg/registry/FieldTypes.h>

#include <xsg/core/SoMField.h>
#include <xsg/core/SoSField.h>
#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFBox3f.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFEnum.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFMatrix.h>
#include <xsg/fields/SoMFName.h>
#include <xsg/fields/SoMFPlane.h>
#include <xsg/fields/SoMFRotation.h>
#include <xsg/fields/SoMFShort.h>
#include <xsg/fields/SoMFString.h>
#include <xsg/fields/SoMFTime.h>
#include <xsg/fields/SoMFUInt32.h>
#include <xsg/fields/SoMFUShort.h>
#include <xsg/fields/SoMFVec2d.h>
#include <xsg/fields/SoMFVec2f.h>
#include <xsg/fields/SoMFVec2i32.h>
#include <xsg/fields/SoMFVec2s.h>
#include <xsg/fields/SoMFVec3d.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/fields/SoMFVec3s.h>
#include <xsg/fields/SoMFVec4d.h>
#include <xsg/fields/SoMFVec4f.h>
#include <xsg/fields/SoSFBitMask.h>
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFBox3f.h>
#include <xsg/fields/SoSFBox3s.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFImage.h>
#include <xsg/fields/SoSFInt32.h>
#include <xsg/fields/SoSFMatrix.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFPlane.h>
#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFShort.h>
#include <xsg/fields/SoSFString.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/fields/SoSFUInt32.h>
#include <xsg/fields/SoSFUShort.h>
#include <xsg/fields/SoSFVec2d.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/fields/SoSFVec2i32.h>
#include <xsg/fields/SoSFVec2s.h>
#include <xsg/fields/SoSFVec3d.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/fields/SoSFVec3s.h>
#include <xsg/fields/SoSFVec4d.h>
#include <xsg/fields/SoSFVec4f.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>

namespace
{

template <class... Fields>
void registerAll()
{
    (Fields::getClassTypeId(), ...);
}

} // namespace

// One line per field type.
void xsg::registerFieldTypes()
{
    registerAll<SoMFBitMask, SoMFBool, SoMFBox3f, SoMFColor, SoMFDouble, SoMFEnum, SoMFFloat, SoMFInt32,
                SoMFMatrix, SoMFName, SoMFNode, SoMFPlane, SoMFRotation, SoMFShort, SoMFString, SoMFTime,
                SoMFUInt32, SoMFUShort, SoMFVec2d, SoMFVec2f, SoMFVec2i32, SoMFVec2s, SoMFVec3d, SoMFVec3f,
                SoMFVec3s, SoMFVec4d, SoMFVec4f, SoMField, SoSFBitMask, SoSFBool, SoSFBox3f, SoSFBox3s,
                SoSFColor, SoSFDouble, SoSFEnum, SoSFFilePathString, SoSFFloat, SoSFImage, SoSFInt32,
                SoSFMatrix, SoSFName, SoSFNode, SoSFPlane, SoSFRotation, SoSFShort, SoSFString, SoSFTime,
                SoSFUInt32, SoSFUShort, SoSFVec2d, SoSFVec2f, SoSFVec2i32, SoSFVec2s, SoSFVec3d, SoSFVec3f,
                SoSFVec3s, SoSFVec4d, SoSFVec4f, SoSField>();
}

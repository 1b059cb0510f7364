// SPDX-License-Identifier: MIT
// Instantiates the single-value fields that share SoSValue.
#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFBox3f.h>
#include <xsg/fields/SoSFBox3s.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFFloat.h>
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
#include <xsg/fields/SoValueImpl.h>

template class SoSValue<float>;
template class SoTyped<SoSFFloat, SoSValue<float>>;
template class SoSValue<double>;
template class SoTyped<SoSFDouble, SoSValue<double>>;
template class SoSValue<std::int32_t>;
template class SoTyped<SoSFInt32, SoSValue<std::int32_t>>;
template class SoSValue<std::uint32_t>;
template class SoTyped<SoSFUInt32, SoSValue<std::uint32_t>>;
template class SoSValue<short>;
template class SoTyped<SoSFShort, SoSValue<short>>;
template class SoSValue<unsigned short>;
template class SoTyped<SoSFUShort, SoSValue<unsigned short>>;
template class SoSValue<bool>;
template class SoTyped<SoSFBool, SoSValue<bool>>;
template class SoSValue<SbString>;
template class SoTyped<SoSFString, SoSValue<SbString>>;
template class SoSValue<SbName>;
template class SoTyped<SoSFName, SoSValue<SbName>>;
template class SoSValue<SbTime>;
template class SoTyped<SoSFTime, SoSValue<SbTime>>;
template class SoSValue<SbVec2f>;
template class SoTyped<SoSFVec2f, SoSValue<SbVec2f>>;
template class SoSValue<SbVec3f>;
template class SoTyped<SoSFVec3f, SoSValue<SbVec3f>>;
template class SoSValue<SbVec4f>;
template class SoTyped<SoSFVec4f, SoSValue<SbVec4f>>;
template class SoSValue<SbVec2d>;
template class SoTyped<SoSFVec2d, SoSValue<SbVec2d>>;
template class SoSValue<SbVec3d>;
template class SoTyped<SoSFVec3d, SoSValue<SbVec3d>>;
template class SoSValue<SbVec4d>;
template class SoTyped<SoSFVec4d, SoSValue<SbVec4d>>;
template class SoSValue<SbVec2i32>;
template class SoTyped<SoSFVec2i32, SoSValue<SbVec2i32>>;
template class SoSValue<SbVec2s>;
template class SoTyped<SoSFVec2s, SoSValue<SbVec2s>>;
template class SoSValue<SbVec3s>;
template class SoTyped<SoSFVec3s, SoSValue<SbVec3s>>;
template class SoSValue<SbColor>;
template class SoTyped<SoSFColor, SoSValue<SbColor>>;
template class SoSValue<SbPlane>;
template class SoTyped<SoSFPlane, SoSValue<SbPlane>>;
template class SoSValue<SbRotation>;
template class SoTyped<SoSFRotation, SoSValue<SbRotation>>;
template class SoSValue<SbMatrix>;
template class SoTyped<SoSFMatrix, SoSValue<SbMatrix>>;
template class SoSValue<SbBox3s>;
template class SoTyped<SoSFBox3s, SoSValue<SbBox3s>>;
template class SoSValue<SbBox3f>;
template class SoTyped<SoSFBox3f, SoSValue<SbBox3f>>;
template class SoTyped<SoSFFilePathString, SoSFString>;

// SPDX-License-Identifier: MIT
// Instantiates the multi-value fields that share SoMValue.
#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFBox3f.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoMFDouble.h>
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
#include <xsg/fields/SoValueImpl.h>

template class SoMValue<float>;
template class SoTyped<SoMFFloat, SoMValue<float>>;
template class SoMValue<double>;
template class SoTyped<SoMFDouble, SoMValue<double>>;
template class SoMValue<std::int32_t>;
template class SoTyped<SoMFInt32, SoMValue<std::int32_t>>;
template class SoMValue<std::uint32_t>;
template class SoTyped<SoMFUInt32, SoMValue<std::uint32_t>>;
template class SoMValue<short>;
template class SoTyped<SoMFShort, SoMValue<short>>;
template class SoMValue<unsigned short>;
template class SoTyped<SoMFUShort, SoMValue<unsigned short>>;
template class SoMValue<SbBool>;
template class SoTyped<SoMFBool, SoMValue<SbBool>>;
template class SoMValue<SbString>;
template class SoTyped<SoMFString, SoMValue<SbString>>;
template class SoMValue<SbName>;
template class SoTyped<SoMFName, SoMValue<SbName>>;
template class SoMValue<SbTime>;
template class SoTyped<SoMFTime, SoMValue<SbTime>>;
template class SoMValue<SbVec2f>;
template class SoTyped<SoMFVec2f, SoMValue<SbVec2f>>;
template class SoMValue<SbVec3f>;
template class SoTyped<SoMFVec3f, SoMValue<SbVec3f>>;
template class SoMValue<SbVec4f>;
template class SoTyped<SoMFVec4f, SoMValue<SbVec4f>>;
template class SoMValue<SbVec2d>;
template class SoTyped<SoMFVec2d, SoMValue<SbVec2d>>;
template class SoMValue<SbVec3d>;
template class SoTyped<SoMFVec3d, SoMValue<SbVec3d>>;
template class SoMValue<SbVec4d>;
template class SoTyped<SoMFVec4d, SoMValue<SbVec4d>>;
template class SoMValue<SbVec2i32>;
template class SoTyped<SoMFVec2i32, SoMValue<SbVec2i32>>;
template class SoMValue<SbVec2s>;
template class SoTyped<SoMFVec2s, SoMValue<SbVec2s>>;
template class SoMValue<SbVec3s>;
template class SoTyped<SoMFVec3s, SoMValue<SbVec3s>>;
template class SoMValue<SbPlane>;
template class SoTyped<SoMFPlane, SoMValue<SbPlane>>;
template class SoMValue<SbRotation>;
template class SoTyped<SoMFRotation, SoMValue<SbRotation>>;
template class SoMValue<SbMatrix>;
template class SoTyped<SoMFMatrix, SoMValue<SbMatrix>>;
template class SoMValue<SbBox3f>;
template class SoTyped<SoMFBox3f, SoMValue<SbBox3f>>;
template class SoTyped<SoMFColor, SoMFVec3f>;

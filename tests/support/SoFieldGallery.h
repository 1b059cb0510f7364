// SPDX-License-Identifier: MIT
#pragma once

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
#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/base/SoSFNode.h>

/// One field of every type, each with a default that shows what the type holds: to try editors on, and to see
/// in a file how each type is written. Draws nothing.
class XSG_API SoFieldGallery : public SoTyped<SoFieldGallery, SoNode>
{
public:
    static constexpr const char* ClassName = "FieldGallery";

    enum Season { SPRING, SUMMER, AUTUMN, WINTER };
    enum Sides { LEFT = 1, RIGHT = 2, TOP = 4, BOTTOM = 8 };

    SoFieldGallery();

    SoSFBool sfBool{this, "sfBool", true};
    SoSFInt32 sfInt32{this, "sfInt32", -42};
    SoSFUInt32 sfUInt32{this, "sfUInt32", 3'000'000'000U};
    SoSFShort sfShort{this, "sfShort", -7};
    SoSFUShort sfUShort{this, "sfUShort", 40'000};
    SoSFFloat sfFloat{this, "sfFloat", 0.5F};
    SoSFDouble sfDouble{this, "sfDouble", 3.141592653589793};
    SoSFTime sfTime{this, "sfTime", 1.5};
    SoSFString sfString{this, "sfString", "a \"quoted\" text"};
    SoSFFilePathString sfFilePathString{this, "sfFilePathString", "textures/wood.png"};
    SoSFName sfName{this, "sfName", "Table"};
    SoSFEnum sfEnum{this, "sfEnum", seasons(), SUMMER};
    SoSFBitMask sfBitMask{this, "sfBitMask", sides(), LEFT | TOP};
    SoSFNode sfNode{this, "sfNode"};
    SoSFVec2f sfVec2f{this, "sfVec2f", {0.25F, 0.75F}};
    SoSFVec2d sfVec2d{this, "sfVec2d", {0.1, 0.2}};
    SoSFVec2i32 sfVec2i32{this, "sfVec2i32", {640, 480}};
    SoSFVec2s sfVec2s{this, "sfVec2s", {-3, 4}};
    SoSFVec3f sfVec3f{this, "sfVec3f", {1, 2, 3}};
    SoSFVec3d sfVec3d{this, "sfVec3d", {0.1, 0.2, 0.3}};
    SoSFVec3s sfVec3s{this, "sfVec3s", {1, -2, 3}};
    SoSFVec4f sfVec4f{this, "sfVec4f", {1, 2, 3, 4}};
    SoSFVec4d sfVec4d{this, "sfVec4d", {0.1, 0.2, 0.3, 0.4}};
    SoSFColor sfColor{this, "sfColor", SbVec3f(1, 0.5F, 0)};
    SoSFPlane sfPlane{this, "sfPlane", SbPlane(SbVec3f(0, 1, 0), 2)};
    SoSFRotation sfRotation{this, "sfRotation", SbRotation(SbVec3f(0, 0, 1), 1.5707964F)};
    SoSFMatrix sfMatrix{this, "sfMatrix", SbMatrix::translation(SbVec3f(1, 2, 3))};
    SoSFBox3s sfBox3s{this, "sfBox3s", {-1, -2, -3, 1, 2, 3}};
    SoSFBox3f sfBox3f{this, "sfBox3f", {-0.5F, -0.5F, -0.5F, 0.5F, 0.5F, 0.5F}};
    SoSFImage sfImage{this, "sfImage"}; // four pixels: red, green, blue, white

    SoMFBool mfBool{this, "mfBool", {1, 0, 1}};
    SoMFInt32 mfInt32{this, "mfInt32", {-1, 0, 1}};
    SoMFUInt32 mfUInt32{this, "mfUInt32", {0, 4'000'000'000U}};
    SoMFShort mfShort{this, "mfShort", {-32768, 32767}};
    SoMFUShort mfUShort{this, "mfUShort", {0, 65535}};
    SoMFFloat mfFloat{this, "mfFloat", {0, 0.25F, 0.5F, 0.75F, 1}};
    SoMFDouble mfDouble{this, "mfDouble", {2.718281828459045, 3.141592653589793}};
    SoMFTime mfTime{this, "mfTime", {0.0, 0.04, 0.08}};
    SoMFString mfString{this, "mfString", {"one", "two words", ""}};
    SoMFName mfName{this, "mfName", {"Leg", "Top"}};
    SoMFEnum mfEnum{this, "mfEnum", seasons(), {SPRING, WINTER}};
    SoMFBitMask mfBitMask{this, "mfBitMask", sides(), {LEFT | RIGHT, 0, BOTTOM}};
    SoMFNode mfNode{this, "mfNode"};
    SoMFVec2f mfVec2f{this, "mfVec2f", {{0, 0}, {1, 0}, {1, 1}}};
    SoMFVec2d mfVec2d{this, "mfVec2d", {{0.1, 0.2}}};
    SoMFVec2i32 mfVec2i32{this, "mfVec2i32", {{640, 480}, {1920, 1080}}};
    SoMFVec2s mfVec2s{this, "mfVec2s", {{-3, 4}}};
    SoMFVec3f mfVec3f{this, "mfVec3f", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    SoMFVec3d mfVec3d{this, "mfVec3d", {{0.1, 0.2, 0.3}}};
    SoMFVec3s mfVec3s{this, "mfVec3s", {{1, -2, 3}}};
    SoMFVec4f mfVec4f{this, "mfVec4f", {{1, 2, 3, 4}}};
    SoMFVec4d mfVec4d{this, "mfVec4d", {{0.1, 0.2, 0.3, 0.4}}};
    SoMFColor mfColor{this, "mfColor", {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    SoMFPlane mfPlane{this, "mfPlane", {SbPlane(SbVec3f(0, 1, 0), 2), SbPlane(SbVec3f(1, 0, 0), -1)}};
    SoMFRotation mfRotation{this, "mfRotation", {SbRotation()}};
    SoMFMatrix mfMatrix{this, "mfMatrix", {SbMatrix()}};
    SoMFBox3f mfBox3f{this, "mfBox3f", {SbBox3f(0, 0, 0, 1, 1, 1)}};

private:
    static SoEnumTablePtr seasons();
    static SoEnumTablePtr sides();
};

extern template class SoTyped<SoFieldGallery, SoNode>;

// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFColorWidget.h"
#include "EdMFDefaultFieldWidget.h"
#include "EdMFDoubleWidget.h"
#include "EdMFFloatWidget.h"
#include "EdMFInt32Widget.h"
#include "EdMFMatrixWidget.h"
#include "EdMFPlaneWidget.h"
#include "EdMFRotationWidget.h"
#include "EdMFShortWidget.h"
#include "EdMFStringWidget.h"
#include "EdMFUInt32Widget.h"
#include "EdMFUShortWidget.h"
#include "EdMFVec2fWidget.h"
#include "EdMFVec2i32Widget.h"
#include "EdMFVec2sWidget.h"
#include "EdMFVec3fWidget.h"
#include "EdMFVec4fWidget.h"

#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFColor.h>

#include <gtest/gtest.h>

/// Every editor of lists with a type of field that it edits, for the tests that all of them pass.
template <class EditorType, class FieldType>
struct Kind {
    using Editor = EditorType;
    using Field = FieldType;
};

using ListEditors = testing::Types<Kind<EdMFColorWidget, SoMFColor>, Kind<EdMFDefaultFieldWidget, SoMFBool>,
                                   Kind<EdMFDoubleWidget, SoMFDouble>, Kind<EdMFFloatWidget, SoMFFloat>,
                                   Kind<EdMFInt32Widget, SoMFInt32>, Kind<EdMFMatrixWidget, SoMFMatrix>,
                                   Kind<EdMFPlaneWidget, SoMFPlane>, Kind<EdMFRotationWidget, SoMFRotation>,
                                   Kind<EdMFShortWidget, SoMFShort>, Kind<EdMFStringWidget, SoMFString>,
                                   Kind<EdMFUInt32Widget, SoMFUInt32>, Kind<EdMFUShortWidget, SoMFUShort>,
                                   Kind<EdMFVec2fWidget, SoMFVec2f>, Kind<EdMFVec2i32Widget, SoMFVec2i32>,
                                   Kind<EdMFVec2sWidget, SoMFVec2s>, Kind<EdMFVec3fWidget, SoMFVec3f>,
                                   Kind<EdMFVec4fWidget, SoMFVec4f>>;

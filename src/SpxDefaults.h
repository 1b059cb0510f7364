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
#include "EdSFBitMaskWidget.h"
#include "EdSFBoolWidget.h"
#include "EdSFBox3sWidget.h"
#include "EdSFColorWidget.h"
#include "EdSFDoubleWidget.h"
#include "EdSFEnumWidget.h"
#include "EdSFFilePathStringWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFImageWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFLineWidget.h"
#include "EdSFMatrixWidget.h"
#include "EdSFNameWidget.h"
#include "EdSFPlaneWidget.h"
#include "EdSFRotationWidget.h"
#include "EdSFShortWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EdSFVec2fWidget.h"
#include "EdSFVec2i32Widget.h"
#include "EdSFVec2sWidget.h"
#include "EdSFVec3fWidget.h"
#include "EdSFVec4fWidget.h"
#include "SpxConsole.h"
#include "SpxFieldEditorDockWin.h"
#include "SpxNodeEditor.h"
#include "SpxPerfCounterExtension.h"
#include "SpxProfileSelectorExtension.h"

#include <scopix/SpxPlugin.h>

/// The plug-in object: holds every default extension and editor by value and hands them to the host.
///
/// A new editor or extension takes two lines: a member in the table below, which decides the order of
/// construction, and its place in the table of load(), which decides the order that the host sees. The two
/// orders differ on purpose.
class SpxDefaults : public SpxPlugin
{
public:
    SpxDefaults();
    ~SpxDefaults() override;

    bool load() override;

private:
    /// Extensions: profile selector, performance counters, console.
    SpxProfileSelectorExtension m_profileSelector;
    SpxPerfCounterExtension m_perfCounters;
    SpxConsole m_console;

    /// Editors of multi-value fields.
    EdMFColorWidget m_mfColor;
    EdMFDefaultFieldWidget m_mfDefault;
    EdMFDoubleWidget m_mfDouble;
    EdMFFloatWidget m_mfFloat;
    EdMFInt32Widget m_mfInt32;
    EdMFMatrixWidget m_mfMatrix;
    EdMFPlaneWidget m_mfPlane;
    EdMFRotationWidget m_mfRotation;
    EdMFShortWidget m_mfShort;
    EdMFStringWidget m_mfString;
    EdMFUInt32Widget m_mfUInt32;
    EdMFUShortWidget m_mfUShort;
    EdMFVec2fWidget m_mfVec2f;
    EdMFVec2i32Widget m_mfVec2i32;
    EdMFVec2sWidget m_mfVec2s;
    EdMFVec3fWidget m_mfVec3f;
    EdMFVec4fWidget m_mfVec4f;

    /// Editors of single-value fields; Enum before Double, FilePathString before Float.
    EdSFBitMaskWidget m_sfBitMask;
    EdSFBoolWidget m_sfBool;
    EdSFBox3sWidget m_sfBox3s;
    EdSFColorWidget m_sfColor;
    EdSFEnumWidget m_sfEnum;
    EdSFDoubleWidget m_sfDouble;
    EdSFFilePathStringWidget m_sfFilePathString;
    EdSFFloatWidget m_sfFloat;
    EdSFImageWidget m_sfImage;
    EdSFInt32Widget m_sfInt32;
    EdSFLineWidget m_sfLine;
    EdSFMatrixWidget m_sfMatrix;
    EdSFNameWidget m_sfName;
    EdSFPlaneWidget m_sfPlane;
    EdSFRotationWidget m_sfRotation;
    EdSFShortWidget m_sfShort;
    EdSFStringWidget m_sfString;
    EdSFUInt32Widget m_sfUInt32;
    EdSFUShortWidget m_sfUShort;
    EdSFVec2fWidget m_sfVec2f;
    EdSFVec2i32Widget m_sfVec2i32;
    EdSFVec2sWidget m_sfVec2s;
    EdSFVec3fWidget m_sfVec3f;
    EdSFVec4fWidget m_sfVec4f;

    /// The docks that show editors.
    SpxFieldEditorDockWin m_fieldEditorDock;
    SpxNodeEditor m_nodeEditor;
};

extern "C" {
// The library's two entry points; only one plug-in object lives at a time. What a constructor throws passes
// through loadPlugin(), and nothing is left behind.
__attribute__((visibility("default"))) SpxPlugin* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}

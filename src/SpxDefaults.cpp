// SPDX-License-Identifier: MIT
#include "SpxDefaults.h"

#include <scopix/SpxPluginNote.h>

SPX_PLUGIN_NOTE("SpxDefaults", "1.0.0")

namespace
{

SpxDefaults* s_plugin = nullptr;

} // namespace

SpxDefaults::SpxDefaults()
{
    setName("SpxDefaults");
    setVendor("Arvex");
    setDescription("Plug-in which loads Scopix default extensions.");
    setVersion("1.0.0");
}

SpxDefaults::~SpxDefaults() = default;

bool SpxDefaults::load()
{
    SpxExtension* const registration[] = {
        // Extensions: profile selector, console, performance counters.
        &m_profileSelector,
        &m_console,
        &m_perfCounters,

        // Editors of multi-value fields; after MFDouble comes the single-value editor of file paths.
        &m_mfColor,
        &m_mfDefault,
        &m_mfDouble,
        &m_sfFilePathString,
        &m_mfFloat,
        &m_mfInt32,
        &m_mfMatrix,
        &m_mfPlane,
        &m_mfRotation,
        &m_mfShort,
        &m_mfString,
        &m_mfUInt32,
        &m_mfUShort,
        &m_mfVec2f,
        &m_mfVec2i32,
        &m_mfVec2s,
        &m_mfVec3f,
        &m_mfVec4f,

        // Editors of single-value fields, but for file paths.
        &m_sfBitMask,
        &m_sfBool,
        &m_sfBox3s,
        &m_sfColor,
        &m_sfEnum,
        &m_sfDouble,
        &m_sfFloat,
        &m_sfImage,
        &m_sfInt32,
        &m_sfLine,
        &m_sfMatrix,
        &m_sfName,
        &m_sfPlane,
        &m_sfRotation,
        &m_sfShort,
        &m_sfString,
        &m_sfUInt32,
        &m_sfUShort,
        &m_sfVec2f,
        &m_sfVec2i32,
        &m_sfVec2s,
        &m_sfVec3f,
        &m_sfVec4f,

        // The docks that show editors.
        &m_fieldEditorDock,
        &m_nodeEditor,
    };
    for (SpxExtension* extension : registration)
        addExtension(extension);
    return SpxPlugin::load();
}

SpxPlugin* loadPlugin()
{
    s_plugin = new SpxDefaults;
    return s_plugin;
}

void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}

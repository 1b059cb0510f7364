// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbString.h>

/// Settings by name, for the library and what is built on it. Each is looked for in the environment, then
/// among the values that the application has set, and falls back on the default that the caller gives. An
/// environment variable that is empty counts as not set. Where values are kept from one run to the next is
/// the application's business.
///
/// Text that is no number or bool where one is asked for gives the default and, once, an SoDebugError
/// warning. Safe from any thread.
class XSG_API SoPreferences
{
public:
    static bool getBool(const char* name, bool fallback); // 1, 0, TRUE, FALSE
    static int getInt(const char* name, int fallback);
    static float getFloat(const char* name, float fallback);
    static SbString getString(const char* name, const SbString& fallback);

    /// Sets the value that holds where the environment has none; a null text takes it away.
    static void setValue(const char* name, const SbString& value);
};

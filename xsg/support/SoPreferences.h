// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbString.h>

/// Settings by name, for the library and what is built on it. Each is looked for in the environment, then in
/// the settings file, and falls back on the default that the caller gives. An environment variable that is
/// empty counts as not set.
///
/// The settings file is the one named by the environment variable XSG_PREFERENCES, or
/// "scopix/preferences.conf" in the user's configuration folder (XDG_CONFIG_HOME, else ~/.config). It has
/// lines of the form
///
///     XSG_PERFCOUNTER_ENABLE = 1      # up to here
///
/// A line that is none of these is named by one SoReadError and skipped; a file that does not exist is no
/// error. Text that is no number or bool where one is asked for gives the default and, once, an SoDebugError
/// warning. Safe from any thread.
class XSG_API SoPreferences
{
public:
    static bool getBool(const char* name, bool fallback); // 1, 0, TRUE, FALSE
    static int getInt(const char* name, int fallback);
    static float getFloat(const char* name, float fallback);
    static SbString getString(const char* name, const SbString& fallback);

    /// Reads another settings file, or the same again; a null text goes back to the usual one.
    static void setFile(const SbString& path);
};

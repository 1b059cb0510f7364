// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>

namespace scopix
{

/// The user's preferences, kept by the host and handed to SoPreferences, which the scene-graph library and
/// the plug-ins ask. They are in the file that the environment variable XSG_PREFERENCES names, or else in
/// preferences.conf among the user's settings, in lines of the form
///
///     XSG_PERFCOUNTER_ENABLE = 1      # up to here
///
/// A line that is none of these is reported by one SoReadError with its number, and skipped. A file that does
/// not exist is no error.
namespace Preferences
{

/// Reads the file and sets its values. Call before plug-ins are loaded. GUI thread only.
void feed();

/// A preference that the user sets in the program: holds at once, and from the next start on, unless the file
/// says otherwise. One sentence where it cannot be kept, else an empty text.
QString set(const QString& name, const QString& value);

/// What the steps of the undo history may take, in bytes: SCOPIX_UNDO_MEMORY, a number of MiB, 256 without
/// it. A value that is no such number is reported by an SoReadError.
std::size_t undoMemory();

} // namespace Preferences

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace scopix
{

/// The folder that the preference XSGHOME names, where extensions look for their data.
namespace DataDirectory
{

/// Where the user has set no XSGHOME, sets the preference to a folder of the user's own, and on first use
/// fills that with the files shipped with the program. Call after the preferences have been read and before
/// plug-ins are loaded. Returns an empty text, or one sentence that says what could not be written.
QString ensure();

} // namespace DataDirectory

} // namespace scopix

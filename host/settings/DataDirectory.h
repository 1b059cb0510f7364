// SPDX-License-Identifier: MIT
#pragma once

class QString;

namespace scopix
{

/// The folder that the preference XSGHOME names, where extensions look for their data.
namespace DataDirectory
{

/// Where XSGHOME is not set, sets it to a folder of the user's own, and on first use fills that with the
/// files shipped with the program. A XSGHOME that is set is left alone. Call before plug-ins are loaded.
/// Returns an empty text, or one sentence that says what could not be written.
QString ensure();

} // namespace DataDirectory

} // namespace scopix

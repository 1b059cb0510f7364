// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <string>

namespace xsg
{

/// Whether something other than a regular file has this path: a folder, a device, or a pipe, which keeps
/// whoever opens it waiting. False where there is nothing. Any thread.
XSG_API bool isSpecialFile(const std::string& path);

} // namespace xsg

// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

/// The library's start: registers every built-in type. Called by itself wherever a type is looked up by name;
/// calling it again does nothing. Safe from any thread.
class XSG_API SoDB
{
public:
    static void init();
};

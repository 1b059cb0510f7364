// The library's start: registers every built-in type. Called by itself wherever a type is looked up by name;
// calling it again does nothing. Safe from any thread.
#pragma once

#include <xsg/values/XsgExport.h>

class XSG_API SoDB
{
public:
    static void init();
};

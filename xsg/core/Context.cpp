// SPDX-License-Identifier: MIT
#include <xsg/core/Context.h>

xsg::Context& xsg::Context::get()
{
    static auto& context = *new Context;
    return context;
}

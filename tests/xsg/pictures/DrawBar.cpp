// SPDX-License-Identifier: MIT
#include "DrawBar.h"

#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <epoxy/gl.h>

void drawBar(const SoDrawingContext& context)
{
    glEnable(GL_SCISSOR_TEST);
    glScissor(0, context.height / 3, context.width, context.height / 8);
    glClearColor(0.9F, 0.7F, 0.2F, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
}

// SPDX-License-Identifier: MIT
// An application's own drawing: a bar from edge to edge. Apart, since Qt and libepoxy each declare OpenGL.
#pragma once

struct SoDrawingContext;

void drawBar(const SoDrawingContext& context);

// SPDX-License-Identifier: MIT
#include "OtherViewer.h"

#include <cstdio>

osgViewer::ViewerBase::~ViewerBase() = default;

void osgViewer::ViewerBase::frame(double)
{
    std::puts("fine");
}

// SPDX-License-Identifier: MIT
// A program on another version of OpenSceneGraph.
#include "OtherViewer.h"

int main()
{
    osgViewer::ViewerBase viewer;
    osgViewer::ViewerBase& base = viewer;
    base.frame(0);
    base.frame(1);
}

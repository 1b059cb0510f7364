// SPDX-License-Identifier: MIT
// A program that has a viewer of this name built into it, as programs have that link OpenSceneGraph
// statically.
#include <cstdio>

namespace osgViewer
{

class ViewerBase
{
public:
    virtual ~ViewerBase();
    virtual void frame(double) { std::puts("fine"); }
};

ViewerBase::~ViewerBase() = default; // not inline, so that what the class is called is in the program

} // namespace osgViewer

int main()
{
    osgViewer::ViewerBase viewer;
    viewer.frame(0);
}

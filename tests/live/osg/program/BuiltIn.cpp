// SPDX-License-Identifier: MIT
// A program that has a viewer of this name built into it, as programs have that link OpenSceneGraph
// statically.
#include <cstdio>

namespace osgViewer
{

class ViewerBase
{
public:
    virtual ~ViewerBase() = default;
    virtual void frame(double) { std::puts("fine"); }
};

} // namespace osgViewer

int main()
{
    osgViewer::ViewerBase viewer;
    viewer.frame(0);
}

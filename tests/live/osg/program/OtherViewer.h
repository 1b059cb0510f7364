// SPDX-License-Identifier: MIT
#pragma once

namespace osgViewer
{

/// The viewer of another version of OpenSceneGraph, as far as a program sees it.
class ViewerBase
{
public:
    virtual ~ViewerBase();
    virtual void frame(double time);
};

} // namespace osgViewer

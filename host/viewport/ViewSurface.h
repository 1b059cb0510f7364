// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class QImage;
class QWidget;
class SoCamera;
class SoNode;
class SoRenderer;

namespace scopix
{

/// Who draws sets up the renderer in `prepare`, which runs before every picture and names what is drawn.
struct ViewContent {
    SoNode* root = nullptr;
    const SoCamera* camera = nullptr;
};

/// What a 3D view draws on: OpenGL in the window where the platform has it, else pictures drawn off the
/// screen.
class ViewSurface
{
public:
    using Prepare = std::function<ViewContent(SoRenderer& renderer)>;
    /// Runs after every picture.
    using Drawn = std::function<void(const SoRenderer& renderer)>;

    virtual ~ViewSurface() = default;
    /// Lets the mouse through to its parent. The parent owns it.
    virtual QWidget* getWidget() = 0;
    /// The picture is no longer right; it is drawn again when the widget is next painted.
    virtual void redraw() = 0;
    /// Pictures drawn so far.
    virtual int getDrawCount() const = 0;
    /// Whether a picture was begun that takes some more turns of the event loop.
    virtual bool isUnfinished() const = 0;

    /// `withOpenGL` false takes pictures in any case.
    static ViewSurface* make(QWidget* parent, Prepare prepare, Drawn drawn, bool withOpenGL);
    /// Whether this platform can draw the scene with OpenGL inside of windows.
    static bool hasOpenGL();
};

} // namespace scopix

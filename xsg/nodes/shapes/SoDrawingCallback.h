// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBox3f.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <functional>

/// What a drawing callback receives. All matrices as SbMatrix has them: points are rows.
struct SoDrawingContext {
    SbMatrix modelMatrix;
    SbMatrix viewMatrix;
    SbMatrix projectionMatrix;
    int width = 0; // of the picture in pixels
    int height = 0;
};

/// A place in the scene where an application draws by itself, with OpenGL 3.3. Draws nothing until a callback
/// is set.
class XSG_API SoDrawingCallback : public SoTyped<SoDrawingCallback, SoShape>
{
public:
    static constexpr const char* ClassName = "DrawingCallback";
    using Callback = std::function<void(const SoDrawingContext&)>;

    SoSFBox3f box{this, "box"}; // around what is drawn; empty: takes no part in boxes

    /// Called in each frame after the opaque shapes, on the rendering thread, with the context current. It
    /// may change any OpenGL setting but the framebuffer; the renderer restores its own. Must not change the
    /// scene.
    void setCallback(Callback callback);
    const Callback& getCallback() const { return m_callback; }

    const SoDrawingCallback* asDrawingCallback() const override { return this; }
    void generate(const SoState& state, SoGeometry& geometry) const override;
    SoGeometryKey getGeometryKey(const SoState& state) const override;
    SbBox3f getBox(const SoState& state) const override;

private:
    Callback m_callback;
};

extern template class SoTyped<SoDrawingCallback, SoShape>;

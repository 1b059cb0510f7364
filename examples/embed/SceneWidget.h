// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/render/SoRenderer.h>

#include <QOpenGLWidget>

/// Draws a scene with OpenGL; update() draws it again. Keeps the scene alive. GUI thread only.
class SceneWidget : public QOpenGLWidget
{
public:
    explicit SceneWidget(SoNode* scene, QWidget* parent = nullptr);
    ~SceneWidget() override;

protected:
    void paintGL() override;

private:
    SoRef<SoNode> m_scene;
    SoRenderer m_renderer;
};

// SPDX-License-Identifier: MIT
#include "SceneWidget.h"

namespace
{

QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(24);
    format.setSamples(4);
    return format;
}

} // namespace

SceneWidget::SceneWidget(SoNode* scene, QWidget* parent)
    : QOpenGLWidget(parent)
    , m_scene(scene)
{
    setFormat(surfaceFormat());
    setMinimumSize(320, 240);
}

SceneWidget::~SceneWidget()
{
    if (!context())
        return; // the platform has no OpenGL, or the widget was never shown
    makeCurrent();
    m_renderer.releaseGL();
    doneCurrent();
}

void SceneWidget::paintGL()
{
    const QSize pixels = size() * devicePixelRatioF();
    m_renderer.render(m_scene.get(), nullptr, pixels.width(),
                      pixels.height()); // no camera: a view of everything
}

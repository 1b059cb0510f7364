// SPDX-License-Identifier: MIT
#include "MillWindow.h"

#include <QtGui/QImage>

#include <algorithm>

MillWindow::MillWindow(Mill& mill, scopix::live::XsgAdapter& adapter, scopix::live::Server& server)
    : m_mill(mill)
    , m_adapter(adapter)
    , m_server(server)
{
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    setFormat(format);
    setWindowTitle("Mill");
    resize(800, 600);
    m_adapter.setRenderer(&m_renderer);
    m_adapter.setPictureFunction(
        [this](std::uint32_t width, std::uint32_t height) { return picture(width, height); });
    startTimer(16);
}

MillWindow::~MillWindow()
{
    m_adapter.setRenderer(nullptr);
    m_adapter.setPictureFunction({});
    makeCurrent();
    m_renderer.releaseGL();
}

void MillWindow::resizeGL(int width, int height)
{
    m_adapter.setAspect(double(width) / std::max(height, 1));
}

void MillWindow::paintGL()
{
    const auto pixels = [this](int size) { return static_cast<int>(size * devicePixelRatioF()); };
    m_renderer.render(m_mill.root.get(), m_mill.camera.get(), pixels(width()), pixels(height()));
}

void MillWindow::timerEvent(QTimerEvent* /*event*/)
{
    m_mill.step();
    update();
    m_server.betweenFrames();
}

// The picture that the user sees.
std::optional<scopix::live::Picture> MillWindow::picture(std::uint32_t width, std::uint32_t height)
{
    const QImage shown = grabFramebuffer()
                             .scaled(static_cast<int>(width), static_cast<int>(height), Qt::KeepAspectRatio)
                             .convertToFormat(QImage::Format_RGBA8888);
    scopix::live::Picture picture{
        static_cast<std::uint32_t>(shown.width()), static_cast<std::uint32_t>(shown.height()), {}};
    for (int row = 0; row < shown.height(); ++row)
        picture.pixels.insert(picture.pixels.end(), shown.constScanLine(row),
                              shown.constScanLine(row) + 4 * shown.width());
    return picture;
}

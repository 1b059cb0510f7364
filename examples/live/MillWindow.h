// SPDX-License-Identifier: MIT
#pragma once

#include "Mill.h"

#include <scopix/live/server/Server.h>
#include <scopix/live/xsg/XsgAdapter.h>

#include <xsg/render/SoRenderer.h>

#include <QtWidgets/QOpenGLWidget>

/// Draws the mill sixty times a second, and lets the server answer after each picture.
class MillWindow : public QOpenGLWidget
{
public:
    MillWindow(Mill& mill, scopix::live::XsgAdapter& adapter, scopix::live::Server& server);
    ~MillWindow() override;

protected:
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::optional<scopix::live::Picture> picture(std::uint32_t width, std::uint32_t height);

    Mill& m_mill;
    scopix::live::XsgAdapter& m_adapter;
    scopix::live::Server& m_server;
    SoRenderer m_renderer;
};

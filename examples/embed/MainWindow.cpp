// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "SceneWidget.h"

#include <scopix-host/HostApplication.h>

#include <QMenuBar>

namespace
{

constexpr int FrameMs = 16;
constexpr float AngleStep = 0.01F; // radians a frame

} // namespace

MainWindow::MainWindow()
    : m_view(new SceneWidget(m_scene.root.get()))
{
    setWindowTitle(tr("Turntable"));
    setCentralWidget(m_view);
    QMenu* menu = menuBar()->addMenu(tr("&Tools"));
    menu->addAction(tr("&Inspect the Scene"), this, &MainWindow::openInspector, QKeySequence(Qt::Key_F12));
    connect(&m_timer, &QTimer::timeout, this, &MainWindow::turn);
    m_timer.start(FrameMs);
}

MainWindow::~MainWindow() = default;

void MainWindow::openInspector()
{
    if (!m_inspector) {
        m_inspector = std::make_unique<scopix::HostApplication>();
        m_inspector->inspect(m_scene.root.get(), windowTitle());
        m_inspector->start();
    }
    m_inspector->show();
}

void MainWindow::turn()
{
    m_angle += AngleStep;
    m_scene.plate->rotation.setValue(SbRotation({0, 1, 0}, m_angle));
    m_view->update(); // and with it, whatever was edited in the inspector
}

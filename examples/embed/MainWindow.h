// SPDX-License-Identifier: MIT
#pragma once

#include "Scene.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace scopix
{
class HostApplication;
}

class SceneWidget;

/// The application's window, with a scene that turns over time. F12 opens the inspector on that scene.
/// GUI thread only.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    const Scene& getScene() const { return m_scene; }

    void openInspector();

private:
    void turn();

    Scene m_scene;
    SceneWidget* m_view;
    QTimer m_timer;
    float m_angle = 0;
    std::unique_ptr<scopix::HostApplication> m_inspector; // made when it is first opened
};

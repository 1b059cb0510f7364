// SPDX-License-Identifier: MIT
#pragma once

#include "import/FileImport.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/files/SceneReading.h>

#include <QBasicTimer>

#include <memory>
#include <vector>

namespace scopix
{

/// Reads one scene file between the events of the user, so that the window stays alive, and then looks for
/// the box around the scene, which the views ask for first. A small one is read before start() returns. GUI
/// thread only.
class SceneImport : public FileImport
{
    Q_OBJECT

public:
    explicit SceneImport(QWidget* window, QObject* parent = nullptr);
    ~SceneImport() override;

    /// Has the nodes handed over too, in the order in which the file has them.
    void keepNodes() { m_keepsNodes = true; }
    void start(const QString& path) override;
    void cancel() override;

signals:
    void finished(const SoRef<SoNode>& scene, const std::vector<SoNode*>& nodes);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void goOn(int ms);
    bool read(xsg::SceneReader::Clock::time_point until);
    void report();
    bool cancelReading();

    std::unique_ptr<xsg::SceneReading> m_reading; // null before and after
    SoRef<SoNode> m_scene;                        // once it is read
    SoBoundingBoxAction m_box;
    QBasicTimer m_turn;
    bool m_keepsNodes = false;
};

} // namespace scopix

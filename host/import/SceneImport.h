// SPDX-License-Identifier: MIT
#pragma once

#include "import/FileImport.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/files/SceneReading.h>

#include <QBasicTimer>

#include <memory>
#include <vector>

class SoTexture2;

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

    /// Has all nodes noted, in the order in which the file has them.
    void keepNodes() { m_keepsNodes = true; }
    /// Those, and the textures among them: of use while the scene is.
    const std::vector<SoNode*>& getNodes() const { return m_nodes; }
    const std::vector<SoTexture2*>& getTextures() const { return m_textures; }
    void start(const QString& path) override;
    void cancel() override;

signals:
    void finished(const SoRef<SoNode>& scene);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void note(SoNode* node);
    void goOn(int ms);
    bool read(xsg::SceneReader::Clock::time_point until);
    void report();
    bool cancelReading();

    std::unique_ptr<xsg::SceneReading> m_reading; // null before and after
    SoRef<SoNode> m_scene;                        // once it is read
    SoBoundingBoxAction m_box;
    QBasicTimer m_turn;
    std::vector<SoNode*> m_nodes;
    std::vector<SoTexture2*> m_textures;
    bool m_keepsNodes = false;
};

} // namespace scopix

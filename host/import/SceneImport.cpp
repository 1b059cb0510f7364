// SPDX-License-Identifier: MIT
#include "import/SceneImport.h"

#include "model/GradualRelease.h"

#include <scopix/SpxSentence.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <QFile>
#include <QFileInfo>

namespace scopix
{

namespace
{

constexpr int FirstMs = 60;          // what takes no longer is not worth a dialog, nor to come back for
constexpr qint64 SmallFile = 16'384; // bytes; takes longer only where it repeats itself very often,
constexpr int SmallFileMs = 500;     // or where the machine is busy
constexpr int TurnMs = 15;           // of reading, before the user's events are looked at again

} // namespace

SceneImport::SceneImport(QWidget* window, QObject* parent)
    : FileImport(window, parent)
{
}

SceneImport::~SceneImport()
{
    cancelReading();
}

void SceneImport::start(const QString& path)
{
    m_reading = std::make_unique<xsg::SceneReading>(QFile::encodeName(path).toStdString());
    m_reading->getReader().setNodeListener([this](SoNode* node) { note(node); });
    openDialog(path);
    m_turn.start(0, this);
    goOn(QFileInfo(path).size() <= SmallFile ? SmallFileMs : FirstMs);
}

void SceneImport::note(SoNode* node)
{
    if (m_keepsNodes)
        m_nodes.push_back(node);
    if (node->getTypeId() == SoTexture2::getClassTypeId())
        m_textures.push_back(static_cast<SoTexture2*>(node));
}

void SceneImport::timerEvent(QTimerEvent* /*event*/)
{
    goOn(TurnMs);
}

void SceneImport::goOn(int ms)
{
    const auto until = xsg::SceneReader::Clock::now() + std::chrono::milliseconds(ms);
    if (read(until) && (!m_scene || m_box.advance(until)))
        return report();
    showPercent(static_cast<int>(m_reading->getProgress() * 100)); // may run the event loop, and so cancel
}

// True when there is nothing more to read.
bool SceneImport::read(xsg::SceneReader::Clock::time_point until)
{
    if (m_scene)
        return true;
    if (!m_reading->advance(until))
        return false;
    m_scene = m_reading->takeScene();
    if (m_scene)
        m_box.begin(m_scene.get());
    return true;
}

void SceneImport::report()
{
    const SoRef<SoNode> scene = std::move(m_scene);
    const QString error = SpxSentence::translated(m_reading->getError());
    cancelReading();
    if (scene)
        emit finished(scene);
    else
        emit failed(error);
}

void SceneImport::cancel()
{
    if (cancelReading())
        emit cancelled();
}

// False where nothing is being read.
bool SceneImport::cancelReading()
{
    m_turn.stop();
    closeDialog();
    const std::unique_ptr<xsg::SceneReading> reading = std::move(m_reading);
    if (!reading)
        return false;
    std::vector<SoRef<SoNode>> nodes = reading->getReader().abandon();
    if (m_scene)
        nodes.push_back(std::move(m_scene));
    releaseGradually(std::move(nodes));
    return true;
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "cost/CostRun.h"

#include "cost/PictureReader.h"

namespace profiler
{

CostRun::CostRun(QObject* parent)
    : QObject(parent)
{
}

CostRun::~CostRun() = default;

void CostRun::start(SoNode* root, const SoCamera* camera, const QSize& size)
{
    stop();
    m_root = SoRef<SoNode>(root);
    m_changes = root->getChangeCount();
    m_camera = SoRef<SoCamera>(const_cast<SoCamera*>(camera));
    m_look = camera ? camera->getViewMatrix() : SbMatrix();
    m_size = size;
    m_meter = std::make_unique<SoCostMeter>(root, camera, size.width(), size.height(), readPicture);
    m_timer.start(0, this);
    emit advanced();
}

void CostRun::stop()
{
    m_timer.stop();
    m_meter.reset();
    m_root = SoRef<SoNode>();
    m_camera = SoRef<SoCamera>();
}

void CostRun::clear()
{
    stop();
    m_costs = {};
}

void CostRun::timerEvent(QTimerEvent* /*event*/)
{
    if (m_root->getChangeCount() != m_changes)
        return finish(tr("The cost cannot be told: the scene has changed meanwhile; stop what moves and "
                         "measure again."));
    if (m_camera && !(m_camera->getViewMatrix() == m_look))
        return finish(tr("The cost cannot be told: the view has moved meanwhile; let it stand still and "
                         "measure again."));
    if (m_meter->step())
        return emit advanced();
    if (m_meter->getProgress() < 1 || !m_meter->getErrorText().empty())
        return finish(QString::fromStdString(m_meter->getErrorText()));
    m_costs = m_meter->getCosts();
    finish({});
}

void CostRun::finish(const QString& problem)
{
    stop();
    emit finished(problem);
}

} // namespace profiler

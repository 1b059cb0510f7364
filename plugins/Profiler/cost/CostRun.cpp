// SPDX-License-Identifier: MIT
#include "cost/CostRun.h"

#include "cost/PictureReader.h"

#include <scopix/SpxSentence.h>

namespace profiler
{

CostRun::CostRun(QObject* parent)
    : QObject(parent)
{
}

CostRun::~CostRun() = default;

void CostRun::start(SoNode* root, const SoCamera* camera, const QSize& size, const SoHiding& hiding)
{
    begin(root, camera, size);
    m_meter = std::make_unique<SoCostMeter>(root, camera, size.width(), size.height(), readPicture, hiding);
    emit advanced();
}

void CostRun::startWithout(const SoNode* node, SoNode* root, const SoCamera* camera, const QSize& size,
                           const SoHiding& hiding)
{
    begin(root, camera, size);
    m_whatIf =
        std::make_unique<SoWhatIfMeter>(root, node, camera, size.width(), size.height(), readPicture, hiding);
    emit advanced();
}

void CostRun::begin(SoNode* root, const SoCamera* camera, const QSize& size)
{
    stop();
    m_root = SoRef<SoNode>(root);
    m_changes = root->getChangeCount();
    m_camera = SoRef<SoCamera>(const_cast<SoCamera*>(camera));
    m_look = camera ? camera->getViewMatrix() : SbMatrix();
    m_size = size;
    m_timer.start(0, this);
}

double CostRun::getProgress() const
{
    return m_meter ? m_meter->getProgress() : m_whatIf ? m_whatIf->getProgress() : 1;
}

void CostRun::stop()
{
    m_timer.stop();
    m_meter.reset();
    m_whatIf.reset();
    m_root = SoRef<SoNode>();
    m_camera = SoRef<SoCamera>();
}

void CostRun::clear()
{
    stop();
    m_costs = {};
}

// A sentence where it cannot go on.
QString CostRun::whyNot() const
{
    if (m_root->getChangeCount() != m_changes)
        return tr(
            "The cost cannot be told: the scene has changed meanwhile; stop what moves and measure again.");
    if (m_camera && !(m_camera->getViewMatrix() == m_look))
        return tr(
            "The cost cannot be told: the view has moved meanwhile; let it stand still and measure again.");
    return {};
}

void CostRun::timerEvent(QTimerEvent* /*event*/)
{
    const QString reason = whyNot();
    if (!reason.isEmpty())
        return finish(reason);
    if (m_meter ? m_meter->step() : m_whatIf->step())
        return emit advanced();
    const SbSentence error = m_meter ? m_meter->getError() : m_whatIf->getError();
    if (m_meter && error.empty())
        m_costs = m_meter->getCosts();
    finish(SpxSentence::translated(error));
}

// What without a branch would be is kept, a scene that has gone is not.
void CostRun::finish(const QString& problem)
{
    std::unique_ptr<SoWhatIfMeter> whatIf = std::move(m_whatIf);
    stop();
    if (problem.isEmpty())
        m_whatIf = std::move(whatIf);
    emit finished(problem);
    if (!isRunning())
        m_whatIf.reset();
}

} // namespace profiler

// SPDX-License-Identifier: MIT
#include "window/OpenScenes.h"

#include "model/GradualRelease.h"
#include "support/UserNotifier.h"
#include "undo/TextInput.h"

#include <algorithm>

namespace scopix
{

OpenScenes::OpenScenes(HostServices& services, UserNotifier& notifier)
    : m_services(services)
    , m_notifier(notifier)
    , m_front(&make())
{
}

// Nobody is to ask for the one in front any more.
OpenScenes::~OpenScenes()
{
    for (const auto& each : m_all) {
        each->getEdits().disconnect();
        each->getDocument().disconnect(this);
    }
}

OpenScene& OpenScenes::make()
{
    m_all.push_back(std::make_unique<OpenScene>(m_services));
    OpenScene& made = *m_all.back();
    SceneDocument& document = made.getDocument();
    connect(&made, &OpenScene::replaced, this, [this, &document] { emit rootChanged(document.getRoot()); });
    connect(&document, &SceneDocument::edited, this, &OpenScenes::edited);
    connect(&document, &SceneDocument::stateChanged, this, [this, &made] {
        if (isFront(made))
            emit stateChanged();
        emit listChanged();
    });
    connect(&made.getAutosave(), &Autosave::failed, &m_notifier, &UserNotifier::error);
    if (m_pauseMs > 0) {
        made.getAutosave().setPause(m_pauseMs);
        made.getAutosave().setLimit(m_limitMs);
    }
    if (m_isKeeping)
        made.startKeeping();
    return made;
}

std::vector<OpenScene*> OpenScenes::getAll() const
{
    std::vector<OpenScene*> all;
    for (const auto& each : m_all)
        all.push_back(each.get());
    return all;
}

void OpenScenes::leaveFront()
{
    TextInput::applyPendingEdit();
    emit aboutToLeave(*m_front);
    m_front->leave();
}

OpenScene& OpenScenes::add()
{
    TextInput::applyPendingEdit();
    if (m_front->isUntouched())
        return *m_front;
    leaveFront();
    m_front = &make();
    return *m_front;
}

void OpenScenes::bringToFront(OpenScene& scene)
{
    if (isFront(scene))
        return;
    leaveFront();
    m_front = &scene;
    scene.enter();
    emit rootChanged(scene.getDocument().getRoot());
    scene.selectAgain();
    emit entered(scene);
    emit stateChanged();
    emit listChanged();
}

void OpenScenes::move(int from, int to)
{
    const auto first = m_all.begin() + std::min(from, to);
    const auto last = m_all.begin() + std::max(from, to) + 1;
    std::rotate(first, from < to ? first + 1 : last - 1, last);
    emit listChanged();
}

void OpenScenes::remove(OpenScene& scene)
{
    const auto at =
        std::find_if(m_all.begin(), m_all.end(), [&](const auto& each) { return each.get() == &scene; });
    if (isFront(scene))
        bringToFront(at + 1 == m_all.end() ? **(at - 1) : **(at + 1));
    emit aboutToRemove(scene);
    scene.getAutosave().drop();
    SoRef<SoNode> root(scene.getDocument().getRoot());
    const std::unique_ptr<OpenScene> removed = std::move(*at);
    m_all.erase(at);
    releaseGradually(std::move(root));
    emit listChanged();
}

void OpenScenes::startKeeping()
{
    m_isKeeping = true;
    for (const auto& each : m_all)
        each->startKeeping();
}

void OpenScenes::setPause(int pauseMs, int limitMs)
{
    m_pauseMs = pauseMs;
    m_limitMs = limitMs;
    for (const auto& each : m_all) {
        each->getAutosave().setPause(pauseMs);
        each->getAutosave().setLimit(limitMs);
    }
}

} // namespace scopix

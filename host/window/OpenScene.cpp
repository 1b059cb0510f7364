// SPDX-License-Identifier: MIT
#include "window/OpenScene.h"

#include "services/HostServices.h"

#include <xsg/core/SoField.h>

namespace scopix
{

OpenScene::OpenScene(HostServices& services)
    : m_services(services)
    , m_document(services)
    , m_autosave(m_document)
    , m_edits(services.history())
{
    m_edits.setHold([&services] { return services.preview().isShowingFormer(); });
    connect(&m_watch, &FileWatch::noticed, &m_document, &SceneDocument::checkFile);
    connect(&m_document, &SceneDocument::rootChanged, this, [this] {
        startChanges();
        emit replaced();
    });
}

// Saving does not start them again (decisions.md: changes-since-opening).
void OpenScene::startChanges()
{
    m_edits.begin(m_document.getRoot(), tr("the scene as it was opened"));
}

bool OpenScene::isUntouched() const
{
    return m_document.getPath().isEmpty() && !m_document.isExternal() && !m_document.isModified() &&
           m_document.getEditCount() == 0;
}

void OpenScene::startKeeping()
{
    if (std::exchange(m_isKeeping, true))
        return;
    m_autosave.start();
    connect(&m_document, &SceneDocument::stateChanged, this, &OpenScene::watchFile);
    watchFile();
}

void OpenScene::watchFile()
{
    m_watch.watch(m_document.getPath());
}

void OpenScene::leave()
{
    m_selected = m_services.getSelectedPaths();
    const SoField* field = m_services.selectedField();
    m_field = field ? field->getName() : SbName();
    m_document.leave();
}

void OpenScene::enter()
{
    m_document.enter();
    m_edits.listen();
}

void OpenScene::selectAgain()
{
    const QList<SoPath> paths = std::exchange(m_selected, {});
    if (paths.isEmpty())
        return;
    m_services.selectPaths(paths);
    SoField* field = m_field.getLength() > 0 ? paths.last().getTail()->getField(m_field) : nullptr;
    if (field)
        m_services.select(field);
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "SpxEditorDock.h"

#include <scopix/SpxServices.h>
#include <scopix/SpxShell.h>
#include <scopix/editing/SpxText.h>

#include <QDockWidget>

SpxEditorDock::SpxEditorDock(const char* title)
{
    setName(title);
    setDescription(std::string(title) + " for Scopix.");
    setVendor("Arvex");
    setVersion("1.0.0");
}

SpxEditorDock::~SpxEditorDock() = default;

void SpxEditorDock::load()
{
    m_dock = new QDockWidget;
    m_dock->setAcceptDrops(false);
    m_dock->setWindowTitle(SpxText::toQString(getName()));
    m_dock->setVisible(false);
}

void SpxEditorDock::unload()
{
    releaseEditor();
    delete m_dock;
}

void SpxEditorDock::activate()
{
    SpxExtension::activate();
    connectTo(SpxServices::getInstance());
    SpxShell* shell = SpxShell::getInstance();
    shell->addDockWidget(m_dock, Qt::RightDockWidgetArea);
    shell->attachExtension(this, true);
}

void SpxEditorDock::deactivate()
{
    releaseEditor();
    SpxExtension::deactivate();
    disconnectFrom(SpxServices::getInstance());
    SpxShell* shell = SpxShell::getInstance();
    shell->removeDockWidget(m_dock);
    shell->detachExtension(this);
}

void SpxEditorDock::show()
{
    SpxExtension::show();
    if (m_dock)
        m_dock->setVisible(true);
}

void SpxEditorDock::hide()
{
    SpxExtension::hide();
    if (m_dock)
        m_dock->setVisible(false);
}

void SpxEditorDock::showEditorOf(SoTypedObject* object)
{
    releaseEditor();
    SpxEditor* editor = object ? editorFor(object->getTypeId()) : nullptr;
    if (!editor)
        return;
    editor->setEditedObject(object);
    m_dock->setWidget(editor->getWidget());
    editor->activate();
    m_editor = editor;
    show();
}

void SpxEditorDock::releaseEditor()
{
    if (!m_editor)
        return;
    m_editor->deactivate();
    m_editor->setEditedObject(nullptr);
    // The dock keeps what it held as its child; the editor owns its widget.
    m_dock->setWidget(nullptr);
    if (QWidget* widget = m_editor->getWidget())
        widget->setParent(nullptr);
    m_editor = nullptr;
    hide();
}

// The most derived handled type wins; among equal ones, the later editor.
SpxEditor* SpxEditorDock::editorFor(SoType type) const
{
    SpxEditor* best = nullptr;
    for (SpxExtension* extension : getProfileSetting()->getControlledExtensions()) {
        auto* editor = dynamic_cast<SpxEditor*>(extension);
        if (!editor || !type.isDerivedFrom(editor->getHandledType()))
            continue;
        if (!best || editor->getHandledType().isDerivedFrom(best->getHandledType()))
            best = editor;
    }
    return best;
}

// SPDX-License-Identifier: MIT
#include "SpxEditorDock.h"

#include <scopix/SpxServices.h>
#include <scopix/SpxShell.h>
#include <scopix/editing/SpxText.h>

#include <QDockWidget>

// An editor whose type covers both fields and nodes moves from one dock to another.
QList<SpxEditorDock*>& SpxEditorDock::docks()
{
    static QList<SpxEditorDock*> all;
    return all;
}

SpxEditorDock::SpxEditorDock(const char* title)
{
    setName(title);
    setDescription(std::string(title) + " for Scopix.");
    setVendor("Arvex");
    setVersion("1.0.0");
    docks().append(this);
}

SpxEditorDock::~SpxEditorDock()
{
    docks().removeOne(this);
}

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
    const int round = ++m_round;
    releaseEditor();
    if (round != m_round)
        return; // what the released editor applied selected something else
    SpxEditor* editor = object ? editorFor(object->getTypeId()) : nullptr;
    if (!editor)
        return;
    for (SpxEditorDock* dock : qAsConst(docks())) {
        if (dock->m_editor == editor)
            dock->releaseEditor();
    }
    m_editor = editor; // before activate(), which may select something else
    editor->setEditedObject(object);
    m_dock->setWidget(editor->getWidget());
    editor->activate();
    if (m_editor == editor)
        show();
}

void SpxEditorDock::releaseEditor()
{
    if (!m_editor)
        return;
    const QPointer<SpxEditor> editor = m_editor;
    m_editor = nullptr; // before deactivate(), which may select something else
    editor->deactivate();
    if (editor && editor != m_editor)
        undock(editor);
    if (!m_editor)
        hide();
}

void SpxEditorDock::undock(SpxEditor* editor)
{
    editor->setEditedObject(nullptr);
    // The dock keeps what it held as its child; the editor owns its widget.
    if (!m_editor)
        m_dock->setWidget(nullptr);
    if (QWidget* widget = editor->getWidget())
        widget->setParent(nullptr);
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

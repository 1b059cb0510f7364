// SPDX-License-Identifier: MIT
#include "SpxObjectEditor.h"

#include <xsg/core/SoField.h>

SpxObjectEditor::SpxObjectEditor()
{
    connect(&m_watcher, &SpxWatcher::changed, this, &SpxObjectEditor::refreshIfEdited);
    connect(&m_watcher, &SpxWatcher::objectDestroyed, this, &SpxObjectEditor::letGo);
}

SpxObjectEditor::~SpxObjectEditor()
{
    delete m_widget;
}

void SpxObjectEditor::load()
{
    delete m_widget;
    m_widget = new QWidget;
    build(*m_widget);
    setWidget(m_widget);
}

void SpxObjectEditor::unload()
{
    setWidget(nullptr);
    delete m_widget;
}

void SpxObjectEditor::activate()
{
    SpxEditor::activate();
    m_watcher.watch(getEditedObject());
    if (!m_watcher.getObject())
        return;
    refresh();
    show();
}

void SpxObjectEditor::deactivate()
{
    SpxEditor::deactivate();
    m_watcher.stop();
    hide();
}

void SpxObjectEditor::show()
{
    SpxEditor::show();
    if (m_widget)
        m_widget->setVisible(true);
}

void SpxObjectEditor::hide()
{
    SpxEditor::hide();
    if (m_widget)
        m_widget->setVisible(false);
}

void SpxObjectEditor::refreshIfEdited()
{
    if (m_watcher.getObject())
        refresh();
}

void SpxObjectEditor::letGo()
{
    setEditedObject(nullptr);
    hide();
}

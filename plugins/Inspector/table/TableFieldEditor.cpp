// SPDX-License-Identifier: MIT
#include "table/TableFieldEditor.h"

#include "table/ListTable.h"
#include "table/TableAccessible.h"
#include "table/WideTable.h"

#include <QAction>
#include <QVBoxLayout>

namespace inspector
{

TableFieldEditor::TableFieldEditor(SoType type, WideTable* wide)
    : m_wide(wide)
{
    const std::string typeName = type.getName().getString();
    setName(typeName + " table");
    setDescription("Edits fields of type " + typeName + " as a table.");
    setVendor("Arvex");
    setVersion("1.0.0");
    setHandledType(type);
}

TableFieldEditor::~TableFieldEditor() = default;

ListTable* TableFieldEditor::table() const
{
    return m_table;
}

void TableFieldEditor::load()
{
    TableAccessible::install();
    SpxObjectEditor::load();
}

void TableFieldEditor::unload()
{
    SpxObjectEditor::unload();
    TableAccessible::uninstall();
}

void TableFieldEditor::build(QWidget& widget)
{
    auto* layout = new QVBoxLayout(&widget);
    layout->setContentsMargins(4, 4, 4, 4);
    m_table = new ListTable;
    layout->addWidget(m_table);
    if (!m_wide)
        return;
    connect(&m_table->wideAction(), &QAction::triggered, this, [this] { m_wide->open(m_table->list()); });
}

void TableFieldEditor::refresh()
{
    auto* list = edited<SoMField>();
    m_table->wideAction().setVisible(m_wide && m_wide->isActive());
    if (m_table->list() == list)
        m_table->refresh();
    else
        m_table->setList(list);
}

// What was typed is applied, unless the list is being destroyed.
void TableFieldEditor::deactivate()
{
    if (m_table && m_table->list())
        m_table->endTyping();
    if (m_table)
        m_table->setList(nullptr);
    SpxObjectEditor::deactivate();
}

} // namespace inspector

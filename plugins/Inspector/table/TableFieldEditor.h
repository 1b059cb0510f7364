// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxObjectEditor.h>

#include <QPointer>

namespace inspector
{

class ListTable;

/// Edits the lists of one type as a table. GUI thread only.
class TableFieldEditor : public SpxObjectEditor
{
    Q_OBJECT

public:
    explicit TableFieldEditor(SoType type);
    ~TableFieldEditor() override;

    void load() override;
    void unload() override;
    void deactivate() override;

    /// Null while not loaded.
    ListTable* table() const;

protected:
    void build(QWidget& widget) override;
    void refresh() override;

private:
    QPointer<ListTable> m_table;
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxObjectEditor.h>

#include <QPointer>

namespace inspector
{

class ListTable;
class WideTable;

/// Edits the lists of one type as a table. GUI thread only.
class TableFieldEditor : public SpxObjectEditor
{
    Q_OBJECT

public:
    /// `wide` shows a list wide where the user wants it; null for none. It must outlive the editor.
    explicit TableFieldEditor(SoType type, WideTable* wide = nullptr);
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
    WideTable* const m_wide;
    QPointer<ListTable> m_table;
};

} // namespace inspector

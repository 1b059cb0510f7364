// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExtension.h>
#include <scopix/editing/SpxWatcher.h>

#include <QPointer>

class QDockWidget;
class SoMField;

namespace inspector
{

class ListTable;

/// A list as a wide table below the 3D view. It stays while other nodes and fields are selected, until
/// another list is opened, the list is gone, or the user closes it. GUI thread only.
class WideTable : public SpxExtension
{
    Q_OBJECT

public:
    WideTable();
    ~WideTable() override;

    void load() override;
    void unload() override;
    void activate() override;
    void deactivate() override;
    void show() override;
    void hide() override;

    /// Shows the list and takes the focus. Null shows nothing.
    void open(SoMField* list);
    ListTable* table() const;

private:
    void refresh();
    void letGo();

    QPointer<QDockWidget> m_dock; // the extension's own, also while the shell is its parent
    QPointer<ListTable> m_table;
    SpxWatcher m_watcher;
};

} // namespace inspector

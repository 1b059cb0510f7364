// SPDX-License-Identifier: MIT
#pragma once

#include "palette/PaletteEntry.h"
#include "panels/SceneFinder.h"

#include <QMainWindow>
#include <QObject>
#include <QPointer>

class QAction;

namespace scopix
{

class CommandPalette;
class HostServices;
class SceneTreeView;
class SettingsActs;

/// What the palette finds in this window, and in those that belong to it: acts of the menus, settings, fields
/// of the selected node, docks, and nodes of the scene, which are looked for between events. Owned by the
/// window. GUI thread only.
class PaletteActs : public QObject
{
    Q_OBJECT

public:
    PaletteActs(QMainWindow& window, SceneTreeView& tree, HostServices& services, SettingsActs& settings);

    QAction* getAction() const { return m_action; }
    CommandPalette& getPalette() { return *m_palette; }

private:
    void open();
    std::vector<PaletteEntry> acts() const;
    std::vector<PaletteEntry> settings() const;
    std::vector<PaletteEntry> fields() const;
    void look(const QString& typed);
    void showNodes();

    QMainWindow& m_window;
    QPointer<QMainWindow> m_inUse; // where it was opened: that, or a further one
    SceneTreeView& m_tree;
    HostServices& m_services;
    SettingsActs& m_settings;
    CommandPalette* m_palette;
    QAction* m_action;
    SceneFinder m_finder;
};

} // namespace scopix

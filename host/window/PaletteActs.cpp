// SPDX-License-Identifier: MIT
#include "window/PaletteActs.h"

#include "acts/MenuActs.h"
#include "palette/CommandPalette.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "text/NodeText.h"
#include "window/SettingsActs.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldData.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPointer>

namespace scopix
{

namespace
{

constexpr std::size_t MostNodes = 30;

// As one word of a query, whatever it holds; a path as it is.
QString queryOf(QString typed)
{
    typed = typed.simplified();
    if (typed.contains(QLatin1Char('/')))
        return typed;
    typed.remove(QLatin1Char('"')).remove(QLatin1Char('\\'));
    return typed.isEmpty() ? QString() : QStringLiteral("\"%1\"").arg(typed);
}

} // namespace

PaletteActs::PaletteActs(QMainWindow& window, SceneTreeView& tree, HostServices& services,
                         SettingsActs& settings)
    : QObject(&window)
    , m_window(window)
    , m_tree(tree)
    , m_services(services)
    , m_settings(settings)
    , m_palette(new CommandPalette(window))
    , m_action(new QAction(tr("&Find Anything…"), this))
{
    m_action->setObjectName(QStringLiteral("paletteAction"));
    m_action->setShortcut(Qt::CTRL + Qt::Key_K);
    m_palette->addSource([this] { return acts(); });
    m_palette->addSource([this] { return this->settings(); });
    m_palette->addSource([this] { return fields(); });
    connect(m_action, &QAction::triggered, this, &PaletteActs::open);
    connect(m_palette, &CommandPalette::typed, this, &PaletteActs::look);
    connect(&m_finder, &SceneFinder::foundChanged, this, &PaletteActs::showNodes);
}

void PaletteActs::open()
{
    auto* active = qobject_cast<QMainWindow*>(QApplication::activeWindow());
    m_inUse = active && active->parentWidget() == &m_window ? active : &m_window;
    m_palette->setWindow(*m_inUse);
    m_palette->open();
}

std::vector<PaletteEntry> PaletteActs::acts() const
{
    std::vector<PaletteEntry> entries;
    const QMainWindow& window = m_inUse ? *m_inUse : m_window;
    for (const MenuAct& act : findActs(*window.menuBar(), true)) {
        if (act.action == m_action)
            continue;
        PaletteEntry entry{act.text, act.place, act.action->shortcut().toString(QKeySequence::NativeText),
                           [action = QPointer<QAction>(act.action)] {
                               if (action)
                                   action->trigger();
                           }};
        entry.isEnabled = act.action->isEnabled();
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::vector<PaletteEntry> PaletteActs::settings() const
{
    std::vector<PaletteEntry> entries;
    for (const Setting& setting : m_settings.settings())
        if (setting.kind != Setting::Kind::Switch) // the others are acts
            entries.push_back(
                {setting.label, tr("Preferences ▸ %1").arg(setting.page), {}, [this, key = setting.key] {
                     m_settings.open(key);
                 }});
    return entries;
}

std::vector<PaletteEntry> PaletteActs::fields() const
{
    std::vector<PaletteEntry> entries;
    const SoFieldContainer* node = m_services.selectedNode();
    if (!node)
        return entries;
    for (int i = 0; i < node->getFieldData()->getNumFields(); ++i) {
        const QString name = toQString(node->getFieldData()->getFieldName(i));
        entries.push_back({name, tr("field of %1").arg(nodeText(*node)), {}, [this, name] {
                               const SoFieldContainer* selected = m_services.selectedNode();
                               if (SoField* found = selected ? selected->getField(toName(name)) : nullptr)
                                   m_services.select(found);
                           }});
    }
    return entries;
}

void PaletteActs::look(const QString& typed)
{
    m_finder.setRoot(typed.isEmpty() ? nullptr : m_tree.getModel().getRoot());
    m_finder.setQuery(queryOf(typed));
}

void PaletteActs::showNodes()
{
    std::vector<PaletteEntry> entries;
    for (const SoRef<SoNode>& node : m_finder.getFound()) {
        if (entries.size() == MostNodes)
            break;
        entries.push_back(
            {nodeText(*node), tr("node, %1").arg(toQString(node->getTypeId().getName())), {}, [this, node] {
                 m_tree.selectNode(node.get());
                 m_tree.reveal(node.get());
             }});
    }
    if (m_finder.hasQuery())
        m_palette->setFound(std::move(entries));
}

} // namespace scopix

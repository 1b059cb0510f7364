// SPDX-License-Identifier: MIT
#include "panel/PanelEditor.h"

#include "fields/PanelSettings.h"
#include "panel/FieldPanel.h"

#include <scopix/SpxShellMenus.h>
#include <xsg/core/SoFieldContainer.h>

#include <QAction>
#include <QVBoxLayout>

namespace inspector
{

namespace
{

constexpr int ShowEveryMs = 33;

} // namespace

PanelEditor::PanelEditor()
{
    setName("Panel");
    setDescription("Shows every field of a node and edits them in place.");
    setVendor("Arvex");
    setVersion("1.0.0");
    setHandledType(SoFieldContainer::getClassTypeId());
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &PanelEditor::showChanges);
}

PanelEditor::~PanelEditor() = default;

void PanelEditor::load()
{
    SpxObjectEditor::load();
    addMenus();
}

void PanelEditor::unload()
{
    removeMenus();
    SpxObjectEditor::unload();
}

void PanelEditor::build(QWidget& widget)
{
    widget.setObjectName(QStringLiteral("inspectorPanel"));
    auto* layout = new QVBoxLayout(&widget);
    layout->setContentsMargins(0, 0, 0, 0);
    m_panel = new FieldPanel;
    layout->addWidget(m_panel);
}

void PanelEditor::addMenus()
{
    m_filterAction = std::make_unique<QAction>(tr("&Filter the Fields"));
    m_filterAction->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F));
    connect(m_filterAction.get(), &QAction::triggered, this, &PanelEditor::filter);
    m_degreesAction = std::make_unique<QAction>(tr("An&gles in Degrees"));
    m_degreesAction->setCheckable(true);
    m_degreesAction->setChecked(PanelSettings::showsDegrees());
    connect(m_degreesAction.get(), &QAction::toggled, this, [this](bool degrees) {
        PanelSettings::setShowsDegrees(degrees);
        if (m_panel)
            m_panel->rebuild();
    });
    if (SpxShellMenus* shell = SpxShellMenus::getInstance()) {
        shell->addMenuAction(SpxShellMenus::Menu::Edit, m_filterAction.get());
        shell->addMenuAction(SpxShellMenus::Menu::View, m_degreesAction.get());
    }
}

void PanelEditor::removeMenus()
{
    m_filterAction.reset();
    m_degreesAction.reset();
}

void PanelEditor::filter()
{
    if (!m_panel || !m_panel->isVisible())
        return;
    if (SpxShellMenus* shell = SpxShellMenus::getInstance())
        shell->raiseDocksOf("Node Editor");
    m_panel->focusFilter();
}

void PanelEditor::activate()
{
    SpxObjectEditor::activate();
    m_panel->setNode(edited<SoFieldContainer>());
}

// What is typed belongs to the node that is left.
void PanelEditor::deactivate()
{
    m_later.stop();
    if (m_panel) {
        m_panel->finish();
        m_panel->setNode(nullptr);
    }
    SpxObjectEditor::deactivate();
}

void PanelEditor::refresh()
{
    if (m_sinceShown.isValid() && m_sinceShown.elapsed() < ShowEveryMs) {
        if (!m_later.isActive())
            m_later.start(ShowEveryMs);
        return;
    }
    showChanges();
}

void PanelEditor::showChanges()
{
    m_sinceShown.start();
    if (m_panel && m_panel->node())
        m_panel->refresh();
}

} // namespace inspector

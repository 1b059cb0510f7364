// SPDX-License-Identifier: MIT
#include "panel/PanelEditor.h"

#include "fields/PanelSettings.h"
#include "panel/FieldPanel.h"
#include "panel/PinnedPanels.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/SpxServices.h>
#include <scopix/SpxSettings.h>
#include <scopix/SpxShellMenus.h>
#include <xsg/core/SoFieldContainer.h>

#include <QAction>
#include <QVBoxLayout>

namespace inspector
{

namespace
{

using Choices = QVector<QPair<QString, QString>>;

Choices lengthUnits()
{
    const QStringList names{PanelEditor::tr("metres"), PanelEditor::tr("centimetres"),
                            PanelEditor::tr("millimetres"), PanelEditor::tr("inches"),
                            PanelEditor::tr("feet")};
    Choices units;
    for (int unit = 0; unit < names.size(); ++unit)
        units.append({QString::number(unit), names[unit]});
    return units;
}

Choices digitCounts()
{
    Choices counts{{QString::number(0), PanelEditor::tr("All")}};
    for (const int count : {3, 4, 6})
        counts.append({QString::number(count), QString::number(count)});
    return counts;
}

} // namespace

PanelEditor::PanelEditor(PinnedPanels& pins)
    : m_pins(pins)
{
    setName("Panel");
    setDescription("Shows every field of a node and edits them in place.");
    setVendor("Arvex");
    setVersion("1.0.0");
    setHandledType(SoFieldContainer::getClassTypeId());
}

PanelEditor::~PanelEditor() = default;

void PanelEditor::load()
{
    SpxObjectEditor::load();
    addMenus();
    addSettings();
    if (SpxServices* services = SpxServices::getInstance())
        connect(services, &SpxServices::selectedNodeChanged, this, &PanelEditor::follow);
}

void PanelEditor::unload()
{
    if (SpxServices* services = SpxServices::getInstance())
        disconnect(services, nullptr, this, nullptr);
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
    connect(m_panel, &FieldPanel::pinRequested, this, [this] { m_pins.pin(m_panel->nodes()); });
    connect(&m_pins, &PinnedPanels::comparedChanged, m_panel, [this] { showNodes(); });
}

void PanelEditor::addMenus()
{
    m_filterAction = std::make_unique<QAction>(tr("&Filter the Fields"));
    m_filterAction->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F));
    connect(m_filterAction.get(), &QAction::triggered, this, &PanelEditor::filter);
    m_degreesAction = std::make_unique<QAction>(tr("An&gles in Degrees"));
    m_degreesAction->setObjectName(QString::fromLatin1("anglesInDegrees"));
    m_degreesAction->setShortcut(QKeySequence(QString::fromLatin1("Ctrl+J, D")));
    m_degreesAction->setCheckable(true);
    m_degreesAction->setChecked(PanelSettings::showsDegrees());
    connect(m_degreesAction.get(), &QAction::toggled, this, [this](bool degrees) {
        PanelSettings::setShowsDegrees(degrees);
        rebuild();
    });
    if (SpxShellMenus* shell = SpxShellMenus::getInstance()) {
        shell->addMenuAction(SpxShellMenus::Menu::Edit, m_filterAction.get());
        shell->addMenuAction(SpxShellMenus::Menu::View, m_degreesAction.get());
    }
}

void PanelEditor::rebuild()
{
    if (m_panel)
        m_panel->rebuild();
}

// Nothing of it may lie in the plug-in's memory, which goes before the dialog.
void PanelEditor::addSettings()
{
    SpxSettings* settings = SpxSettings::getInstance();
    if (!settings)
        return;
    SpxSettings::Choice length;
    length.key = QString::fromLatin1("lengthUnit");
    length.page = tr("Numbers");
    length.label = tr("Lengths in");
    length.help = tr("How the panel shows lengths. Any unit can be typed, as in “3 cm” or “2 in”.");
    length.choices = lengthUnits();
    length.shipped = length.choices.first().first;
    length.get = [] { return QString::number(int(PanelSettings::lengthUnit())); };
    length.set = [this](const QString& unit) {
        PanelSettings::setLengthUnit(LengthUnit(unit.toInt()));
        rebuild();
    };
    settings->addChoice(this, length);

    SpxSettings::Choice digits;
    digits.key = QString::fromLatin1("digits");
    digits.page = length.page;
    digits.label = tr("Digits of a number");
    digits.help = tr("How many the panel shows. What a field holds keeps all of them.");
    digits.choices = digitCounts();
    digits.shipped = digits.choices.first().first;
    digits.get = [] { return QString::number(PanelSettings::digits()); };
    digits.set = [this](const QString& count) {
        PanelSettings::setDigits(count.toInt());
        rebuild();
    };
    settings->addChoice(this, digits);
}

void PanelEditor::removeMenus()
{
    if (SpxSettings* settings = SpxSettings::getInstance())
        settings->removeChoices(this);
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
    showNodes();
}

// Others were selected with it, or are no longer.
void PanelEditor::follow(SoFieldContainer* node)
{
    if (m_panel && node && node == m_panel->node())
        showNodes();
}

void PanelEditor::showNodes()
{
    auto* node = edited<SoFieldContainer>();
    const SpxSceneServices* scene = SpxSceneServices::getInstance();
    const QList<SoFieldContainer*> selected = scene ? scene->getSelectedNodes() : QList<SoFieldContainer*>();
    if (!selected.isEmpty() && selected.last() == node)
        m_panel->setNodes({selected.begin(), selected.end()});
    else
        m_panel->setNodes(node ? std::vector<SoFieldContainer*>{node} : std::vector<SoFieldContainer*>());
    m_panel->setPinnable(m_pins.isActive());
    const bool isOne = m_panel->nodes().size() == 1;
    m_panel->compareWith(isOne && m_pins.compared() != node ? m_pins.compared() : nullptr);
}

// What is typed belongs to the node that is left.
void PanelEditor::deactivate()
{
    if (m_panel)
        m_panel->setNodes({});
    SpxObjectEditor::deactivate();
}

void PanelEditor::refresh()
{
    if (m_panel)
        m_panel->refreshSoon();
}

} // namespace inspector

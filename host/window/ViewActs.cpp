// SPDX-License-Identifier: MIT
#include "window/ViewActs.h"

#include "services/HostServices.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "viewport/ToneMappingNames.h"

#include <QActionGroup>
#include <QMenu>

namespace scopix
{

namespace
{

QString sizeBoxKey()
{
    return QStringLiteral("showSizeBox");
}

QString hoverKey()
{
    return QStringLiteral("showHover");
}

QString toneMappingKey()
{
    return QStringLiteral("toneMapping");
}

bool remembered(const QString& key, bool atFirst)
{
    return SettingsFile(UserSettings::windowFile()).value(key).isValid()
               ? SettingsFile(UserSettings::windowFile()).value(key).toBool()
               : atFirst;
}

// One entry for each choice, of which one is checked, named by its number.
template <class Choice, std::size_t Count, class Act>
void addChoices(QMenu& menu, const char* name, int firstKey,
                const std::pair<Choice, QString> (&entries)[Count], Choice present, const Act& act)
{
    auto* group = new QActionGroup(&menu);
    for (const auto& [choice, text] : entries) {
        QAction* action = menu.addAction(text, group, [act, choice = choice] { act(choice); });
        action->setObjectName(QLatin1String(name) + QString::number(static_cast<int>(choice)));
        action->setShortcut(QStringLiteral("Ctrl+J, %1").arg(firstKey++));
        action->setCheckable(true);
        action->setChecked(choice == present);
        group->addAction(action);
    }
}

} // namespace

ViewActs::ViewActs(QMenu& menu, SceneView& view, QWidget& tree, HostServices& services,
                   UserNotifier& notifier)
    : m_view(view)
    , m_notifier(notifier)
    , m_selectionMeasure(view, [&services] { return services.getSelectedPaths(); })
    , m_measure(view, m_selectionMeasure)
    , m_sizeBox(view, m_selectionMeasure)
    , m_select(view, [&services] { return services.getSelectedPaths(); })
    , m_clipBar(new ClipBar(view))
{
    // The first in this order that has a use for an event takes it.
    view.addTool(&m_measure);
    view.addTool(&m_select);
    view.addTool(&m_sizeBox);
    m_measure.setCrosshair([this] {
        return m_select.hasCrosshair() ? std::optional<QPoint>(m_select.getCrosshair()) : std::nullopt;
    });
    makeShadingMenu(*menu.addMenu(tr("S&hading")));
    makeToneMappingMenu(*menu.addMenu(tr("T&one Mapping")));
    makeShowMenu(*menu.addMenu(tr("Sho&w")));
    makeMeasureAction(menu, tree);
    connect(&view, &SceneView::picked, this, &ViewActs::clicked);
    connect(&m_select, &SelectTool::selectRequested, &services, &HostServices::selectPaths);
    connect(&services, &HostServices::selectionChanged, &m_select, &SelectTool::selectionChanged);
    connect(&services, &HostServices::selectionChanged, &m_selectionMeasure,
            &SelectionMeasure::selectionChanged);
}

ViewActs::~ViewActs()
{
    for (ViewTool* tool : {static_cast<ViewTool*>(&m_measure), static_cast<ViewTool*>(&m_select),
                           static_cast<ViewTool*>(&m_sizeBox)})
        m_view.removeTool(tool);
}

void ViewActs::makeShadingMenu(QMenu& menu)
{
    using Shading = SoRenderer::Shading;
    const std::pair<Shading, QString> entries[] = {{Shading::Full, tr("&Full")},
                                                   {Shading::WithEdges, tr("Full, with &Edges")},
                                                   {Shading::Normals, tr("&Normals")},
                                                   {Shading::TextureCoordinates, tr("&Texture Coordinates")},
                                                   {Shading::Overdraw, tr("&Overdraw")}};
    addChoices(menu, "shading", 1, entries, m_view.getShading(),
               [this](Shading shading) { m_view.setShading(shading); });
}

void ViewActs::makeToneMappingMenu(QMenu& menu)
{
    using ToneMapping = SoRenderer::ToneMapping;
    const std::pair<ToneMapping, QString> entries[] = {
        {ToneMapping::None, tr("&None: What Is Brighter than White Is White")},
        {ToneMapping::Neutral, tr("Neu&tral: Bright Light Is Compressed, Colours Stay")},
        {ToneMapping::Filmic, tr("&Filmic: All Is Compressed, as on Film")}};
    const QString kept = SettingsFile(UserSettings::windowFile()).value(toneMappingKey()).toString();
    if (const auto before = toneMappingNamed(kept))
        m_view.setToneMapping(*before);
    addChoices(menu, "toneMapping", 6, entries, m_view.getToneMapping(), [this](ToneMapping toneMapping) {
        m_view.setToneMapping(toneMapping);
        remember(toneMappingKey(), nameOf(toneMapping));
    });
    // The command line may ask for another one.
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
        const auto present = static_cast<int>(m_view.getToneMapping());
        menu.actions().at(present)->setChecked(true);
    });
}

void ViewActs::makeShowMenu(QMenu& menu)
{
    QAction* box = menu.addAction(tr("&Box with Sizes around the Selection"));
    box->setObjectName(QStringLiteral("sizeBoxAction"));
    box->setShortcut(QStringLiteral("Ctrl+J, B"));
    box->setCheckable(true);
    connect(box, &QAction::toggled, &m_sizeBox, &SizeBoxTool::setOn);
    box->setChecked(remembered(sizeBoxKey(), false));
    connect(box, &QAction::triggered, this, [this](bool on) { remember(sizeBoxKey(), on); });
    QAction* hover = menu.addAction(tr("&What a Click Would Select"));
    hover->setObjectName(QStringLiteral("hoverAction"));
    hover->setShortcut(QStringLiteral("Ctrl+J, H"));
    hover->setCheckable(true);
    connect(hover, &QAction::toggled, &m_select, &SelectTool::setHovering);
    hover->setChecked(remembered(hoverKey(), true));
    m_select.setHovering(hover->isChecked());
    connect(hover, &QAction::triggered, this, [this](bool on) { remember(hoverKey(), on); });
    QAction* clip = menu.addAction(tr("&Clipping Plane"));
    clip->setObjectName(QStringLiteral("clipAction"));
    clip->setShortcut(QStringLiteral("Ctrl+J, P"));
    clip->setCheckable(true);
    connect(clip, &QAction::toggled, m_clipBar, &ClipBar::setOpen);
    connect(m_clipBar, &ClipBar::closed, clip, [clip] { clip->setChecked(false); });
}

// In the tree it would otherwise search for rows that begin with the letter.
void ViewActs::makeMeasureAction(QMenu& menu, QWidget& tree)
{
    QAction* measure = menu.addAction(tr("&Measure"));
    measure->setObjectName(QStringLiteral("measureAction"));
    measure->setCheckable(true);
    measure->setShortcut(Qt::Key_M);
    measure->setShortcutContext(Qt::WidgetShortcut);
    for (QWidget* widget : {static_cast<QWidget*>(&m_view), &tree})
        widget->addAction(measure);
    connect(measure, &QAction::toggled, this, [this](bool on) {
        m_measure.setOn(on);
        if (on)
            m_view.setFocus();
    });
    connect(&m_measure, &MeasureTool::changed, measure, &QAction::setChecked);
    connect(&m_measure, &MeasureTool::changed, this, [this](bool on) { m_select.setPaused(on); });
}

void ViewActs::clicked(const SoPath& toShape)
{
    if (m_measure.isOn())
        m_measure.click();
    else
        m_select.click(toShape);
}

void ViewActs::remember(const QString& key, const QVariant& value)
{
    const QString problem = SettingsFile(UserSettings::windowFile()).setValue(key, value);
    if (!problem.isEmpty())
        m_notifier.error(problem);
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "cost/CostPanel.h"

#include "ProfilerSettings.h"
#include "cost/HeatColors.h"
#include "cost/TreeMap.h"
#include "frames/FrameBars.h"

#include <scopix/SpxSceneDisplay.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/SpxViewLook.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace profiler
{

namespace
{

double timeOf(const SoBranchCost& branch)
{
    return branch.getTime();
}

double trianglesOf(const SoBranchCost& branch)
{
    return static_cast<double>(branch.triangles);
}

double memoryOf(const SoBranchCost& branch)
{
    return static_cast<double>(branch.meshBytes + branch.pictureBytes);
}

double bodiesOf(const SoBranchCost& branch)
{
    return static_cast<double>(branch.shapes);
}

QString sentenceOf(const SoCostHint& hint)
{
    QString sentence = QCoreApplication::translate("CostHint", hint.pattern);
    for (const std::string& argument : hint.arguments)
        sentence = sentence.arg(QString::fromStdString(argument));
    return sentence;
}

constexpr TreeMap::Figure Figures[] = {timeOf, trianglesOf, memoryOf, bodiesOf};

enum Column {
    Name,
    Time,
    Spread,
    Processor,
    Graphics,
    Triangles,
    Bodies,
    DrawCalls,
    Memory,
    Pixels,
    NumColumns
};
enum Colors { AsItIs, HeatOfTime, HeatOfTriangles, Overdraw };

// Shown with three digits, sorted as it is; what was not measured stays empty.
void setNumber(QTreeWidgetItem& item, int column, double value, bool isKnown = true)
{
    if (isKnown)
        item.setData(column, Qt::DisplayRole, std::round(value * 1000) / 1000);
    item.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

CostPanel::CostPanel(QWidget* parent)
    : QWidget(parent)
    , m_button(new QPushButton(tr("Measure Cost")))
    , m_without(new QPushButton(tr("Without It")))
    , m_figure(new QComboBox)
    , m_colors(new QComboBox)
    , m_line(new QLabel(tr("What does each part of the scene cost? It is drawn part by part to find out.")))
    , m_tree(new QTreeWidget)
    , m_map(new TreeMap)
    , m_hints(new QListWidget)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    layout->addLayout(top);
    makeTools(*top);
    makeParts(*layout);
    connectParts();
}

void CostPanel::makeTools(QLayout& top)
{
    m_button->setObjectName(QStringLiteral("measureCost"));
    m_button->setMinimumWidth(m_button->sizeHint().width());
    m_without->setObjectName(QStringLiteral("withoutBranch"));
    m_without->setCheckable(true);
    m_without->setEnabled(false);
    m_without->setToolTip(
        tr("Hide the chosen branch and measure what the picture takes then; nothing is written"));
    m_figure->setObjectName(QStringLiteral("areasFigure"));
    m_figure->addItems({tr("Areas: time"), tr("Areas: triangles"), tr("Areas: memory"), tr("Areas: bodies")});
    m_figure->setAccessibleName(tr("What the areas tell"));
    m_figure->setCurrentIndex(std::clamp(ProfilerSettings::costAreas(), 0, m_figure->count() - 1));
    m_colors->setObjectName(QStringLiteral("heatColors"));
    m_colors->addItems(
        {tr("View: as it is"), tr("View: time"), tr("View: triangles a pixel"), tr("View: overdraw")});
    m_colors->setAccessibleName(tr("What the colours of the 3D view tell"));
    m_colors->setToolTip(tr("Blue costs little, red much"));
    m_line->setObjectName(QStringLiteral("costLine"));
    m_line->setWordWrap(true);
    m_line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    for (QWidget* tool :
         {static_cast<QWidget*>(m_button), static_cast<QWidget*>(m_without), static_cast<QWidget*>(m_figure),
          static_cast<QWidget*>(m_colors), static_cast<QWidget*>(m_line)})
        top.addWidget(tool);
}

void CostPanel::makeParts(QLayout& layout)
{
    m_tree->setObjectName(QStringLiteral("costTree"));
    m_tree->setAccessibleName(tr("Cost of each branch"));
    m_tree->setHeaderLabels({tr("Node"), tr("Time, ms"), tr("±, ms"), tr("Processor, ms"),
                             tr("Graphics card, ms"), tr("Triangles"), tr("Bodies"), tr("Draw calls"),
                             tr("Memory, kB"), tr("Pixels")});
    m_tree->setUniformRowHeights(true);
    m_tree->sortByColumn(std::clamp(ProfilerSettings::costColumn(), 0, NumColumns - 1),
                         ProfilerSettings::costOrder());
    m_hints->setObjectName(QStringLiteral("costHints"));
    m_hints->setAccessibleName(tr("Hints"));
    m_hints->setWordWrap(true);
    auto* parts = new QSplitter;
    for (QWidget* part :
         {static_cast<QWidget*>(m_tree), static_cast<QWidget*>(m_map), static_cast<QWidget*>(m_hints)})
        parts->addWidget(part);
    layout.addWidget(parts);
    parts->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CostPanel::connectParts()
{
    connect(m_button, &QPushButton::clicked, this, [this] { m_run.isRunning() ? clear() : measure(); });
    connect(m_without, &QPushButton::clicked, this, &CostPanel::setWithout);
    connect(&m_run, &CostRun::advanced, this, &CostPanel::showProgress);
    connect(&m_run, &CostRun::finished, this, &CostPanel::showResult);
    connect(m_figure, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int figure) {
        m_map->show(&m_run.getCosts(), Figures[figure]);
        ProfilerSettings::setCostAreas(figure);
    });
    connect(m_colors, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &CostPanel::showColors);
    connect(m_map, &TreeMap::chosen, this, &CostPanel::chooseBranch);
    connect(m_tree->header(), &QHeaderView::sortIndicatorChanged, this, &CostPanel::keepOrder);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        selectInScene(m_run.getCosts().branches[item->data(Name, Qt::UserRole).toUInt()].node.get());
    });
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &CostPanel::branchChosen);
    connect(m_hints, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        const auto hint = static_cast<std::size_t>(m_hints->row(item));
        if (hint < m_found.size())
            selectInScene(m_found[hint].node.get());
    });
}

void CostPanel::keepOrder(int column, Qt::SortOrder order)
{
    ProfilerSettings::setCostOrder(column, order);
}

// Null where none is chosen.
const SoBranchCost* CostPanel::chosenBranch() const
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    return item ? &m_run.getCosts().branches[item->data(Name, Qt::UserRole).toUInt()] : nullptr;
}

void CostPanel::branchChosen()
{
    const SoBranchCost* branch = chosenBranch();
    m_without->setEnabled(branch && branch->parent >= 0);
    if (!branch)
        return;
    m_map->choose(m_tree->currentItem()->data(Name, Qt::UserRole).toInt());
    if (m_hiddenNode && m_hiddenNode.get() != branch->node.get())
        setWithout(false);
    m_line->setText(whatIf(*branch));
}

bool CostPanel::findView(const SoCamera*& camera, QSize& size) const
{
    const SpxViewLook* look = SpxViewLook::getInstance();
    const bool hasView = look && look->getViewCamera() && !look->getViewSize().isEmpty();
    camera = hasView ? look->getViewCamera() : nullptr;
    size = hasView ? look->getViewSize() : QSize(800, 600);
    return hasView;
}

// By the user, not by setWithout().
SoHiding CostPanel::findHidden() const
{
    SoHiding hiding;
    const SpxSceneDisplay* display = SpxSceneDisplay::getInstance();
    if (!display)
        return hiding;
    for (const SoNode* node : display->getHiddenNodes())
        hiding.setHidden(node, node != m_hiddenNode.get());
    const QList<SoNode*> isolated = display->getIsolatedNodes();
    hiding.isolate({isolated.begin(), isolated.end()});
    return hiding;
}

void CostPanel::measure()
{
    clear();
    SpxSceneServices* services = SpxSceneServices::getInstance();
    SoNode* root = services ? services->getSceneRoot() : nullptr;
    const SoCamera* camera = nullptr;
    QSize size;
    findView(camera, size);
    if (root)
        m_run.start(root, camera, size, findHidden());
    else
        m_line->setText(tr("The cost cannot be told: no scene is open; open one first."));
}

void CostPanel::setWithout(bool on)
{
    const SoBranchCost* branch = chosenBranch();
    SpxSceneDisplay* display = SpxSceneDisplay::getInstance();
    if (m_hiddenNode && display)
        display->setHidden(m_hiddenNode.get(), false);
    m_hiddenNode = SoRef<SoNode>();
    m_run.stop();
    m_button->setText(tr("Measure Cost"));
    SpxSceneServices* services = SpxSceneServices::getInstance();
    const bool isPossible = on && branch && services && services->getSceneRoot();
    m_without->setChecked(isPossible);
    if (branch)
        m_line->setText(whatIf(*branch));
    if (!isPossible)
        return;
    const SoCamera* camera = nullptr;
    QSize size;
    findView(camera, size);
    const SoHiding hiding = findHidden();
    if (display && !hiding.isHidden(branch->node.get())) {
        m_hiddenNode = branch->node;
        display->setHidden(m_hiddenNode.get(), true);
    }
    m_run.startWithout(branch->node.get(), services->getSceneRoot(), camera, size, hiding);
}

void CostPanel::showColors()
{
    SpxSceneDisplay* display = SpxSceneDisplay::getInstance();
    if (!display)
        return;
    const SoCosts& costs = m_run.getCosts();
    const int colors = isVisible() ? m_colors->currentIndex() : static_cast<int>(AsItIs);
    display->setOverdrawShown(colors == Overdraw);
    display->setShapeColors(colors == HeatOfTime        ? HeatColors::ofTime(costs)
                            : colors == HeatOfTriangles ? HeatColors::ofTrianglesPerPixel(costs)
                                                        : SoShapeColors());
    if (costs.branches.empty() && (colors == HeatOfTime || colors == HeatOfTriangles))
        m_line->setText(tr("The view has these colours as soon as the cost is measured."));
}

void CostPanel::showEvent(QShowEvent* /*event*/)
{
    showColors();
}

void CostPanel::hideEvent(QHideEvent* /*event*/)
{
    showColors();
}

void CostPanel::clear()
{
    setWithout(false);
    m_tree->clear();
    m_hints->clear();
    m_items.clear();
    m_found.clear();
    m_columns.show({});
    m_run.clear();
    m_map->show(&m_run.getCosts(), Figures[m_figure->currentIndex()]);
    m_line->clear();
    showColors();
}

void CostPanel::showProgress()
{
    m_button->setText(tr("Stop"));
    m_line->setText(tr("Measuring: %1 %").arg(std::lround(m_run.getProgress() * 100)));
}

void CostPanel::showResult(const QString& problem)
{
    m_button->setText(tr("Measure Cost"));
    m_line->setText(problem);
    const SoCosts& costs = m_run.getCosts();
    if (problem.isEmpty() && m_run.getWhatIf())
        return m_line->setText(whatIs(*m_run.getWhatIf()));
    if (!problem.isEmpty() || costs.branches.empty())
        return;
    fillTree();
    fillHints();
    m_columns.show(costs);
    showColors();
    m_map->show(&costs, Figures[m_figure->currentIndex()]);
    const auto ms = [](double value) { return readable(value, QStringLiteral("ms")); };
    const SoBranchCost& root = costs.branches.front();
    m_line->setText(
        tr("The whole takes %1 ± %2, its parts drawn alone %3 together; an empty picture takes %4.")
            .arg(ms(root.getTime()), ms(root.spread), ms(costs.sumOfParts), ms(costs.emptyPicture)));
}

void CostPanel::fillTree()
{
    const std::vector<SoBranchCost>& branches = m_run.getCosts().branches;
    m_tree->setSortingEnabled(false);
    for (std::size_t i = 0; i < branches.size(); ++i) {
        const SoBranchCost& branch = branches[i];
        auto* item = branch.parent < 0
                         ? new QTreeWidgetItem(m_tree)
                         : new QTreeWidgetItem(m_items[static_cast<std::size_t>(branch.parent)]);
        m_items.push_back(item);
        item->setData(Name, Qt::UserRole, static_cast<int>(i));
        fillBranch(*item, branch);
    }
    m_tree->topLevelItem(0)->setExpanded(true);
    m_tree->setSortingEnabled(true);
    for (int column = 0; column < NumColumns; ++column)
        m_tree->resizeColumnToContents(column);
}

void CostPanel::fillBranch(QTreeWidgetItem& item, const SoBranchCost& branch)
{
    item.setText(Name, nameOf(*branch.node));
    setNumber(item, Time, branch.getTime(), branch.isMeasured);
    setNumber(item, Spread, branch.spread, branch.isMeasured);
    setNumber(item, Processor, branch.processor, branch.isMeasured);
    setNumber(item, Graphics, branch.graphics, branch.isMeasured && branch.graphics >= 0);
    setNumber(item, Triangles, trianglesOf(branch));
    setNumber(item, Bodies, bodiesOf(branch));
    setNumber(item, DrawCalls, static_cast<double>(branch.drawCalls), branch.isMeasured);
    setNumber(item, Memory, memoryOf(branch) / 1000);
    setNumber(item, Pixels, static_cast<double>(branch.pixels), branch.isMeasured);
}

void CostPanel::fillHints()
{
    m_found = findCostHints(m_run.getCosts(), m_run.getSize().width(), m_run.getSize().height());
    for (const SoCostHint& hint : m_found)
        m_hints->addItem(tr("“%1”: %2").arg(nameOf(*hint.node), sentenceOf(hint)));
    if (m_found.empty())
        m_hints->addItem(tr("Nothing conspicuous"));
}

void CostPanel::chooseBranch(int branch)
{
    m_tree->setCurrentItem(m_items[static_cast<std::size_t>(branch)]);
}

void CostPanel::selectInScene(const SoNode* node)
{
    if (SpxSceneServices* services = SpxSceneServices::getInstance())
        services->selectNode(const_cast<SoNode*>(node));
}

QString CostPanel::whatIf(const SoBranchCost& branch) const
{
    const SoBranchCost& root = m_run.getCosts().branches.front();
    if (!branch.isMeasured)
        return tr("“%1” was not drawn alone: it is a small part of the whole.").arg(nameOf(*branch.node));
    const double empty = m_run.getCosts().emptyPicture;
    const QString without =
        readable(empty + std::max(0.0, root.getTime() - branch.getTime()), QStringLiteral("ms"));
    const QString with = readable(empty + root.getTime(), QStringLiteral("ms"));
    return branch.isUnseen ? tr("Without “%1” a picture would take %2 instead of %3, and look the same.")
                                 .arg(nameOf(*branch.node), without, with)
                           : tr("Without “%1” a picture would take %2 instead of %3.")
                                 .arg(nameOf(*branch.node), without, with);
}

QString CostPanel::whatIs(const SoWhatIfMeter& meter) const
{
    const SoFrameComparison times = meter.compare();
    const auto ms = [](double value) { return readable(value, QStringLiteral("ms")); };
    const double saved = times.before - times.after;
    const bool isSure = times.isSignificant();
    const QString more =
        isSure ? tr("Without “%1” a picture takes %2 instead of %3: %4 ± %5 more.")
               : tr("Without “%1” a picture takes %2 instead of %3: %4 ± %5 more; that may be chance.");
    const QString less =
        isSure ? tr("Without “%1” a picture takes %2 instead of %3: %4 ± %5 less.")
               : tr("Without “%1” a picture takes %2 instead of %3: %4 ± %5 less; that may be chance.");
    const SoBranchCost* branch = chosenBranch();
    return (saved < 0 ? more : less)
        .arg(branch ? nameOf(*branch->node) : QString(), ms(times.after), ms(times.before),
             ms(std::abs(saved)), ms(meter.getSpread()));
}

} // namespace profiler

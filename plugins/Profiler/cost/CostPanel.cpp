// SPDX-License-Identifier: MIT
#include "cost/CostPanel.h"

#include "cost/TreeMap.h"
#include "frames/FrameBars.h"

#include <scopix/SpxSceneServices.h>
#include <scopix/SpxViewLook.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

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

constexpr TreeMap::Figure Figures[] = {timeOf, trianglesOf, memoryOf, bodiesOf};

enum Column { Name, Time, Spread, Processor, Graphics, Triangles, Bodies, DrawCalls, Memory, NumColumns };

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
    , m_figure(new QComboBox)
    , m_line(new QLabel(tr("What does each part of the scene cost? It is drawn part by part to find out.")))
    , m_tree(new QTreeWidget)
    , m_map(new TreeMap)
    , m_hints(new QListWidget)
{
    m_button->setObjectName(QStringLiteral("measureCost"));
    m_button->setMinimumWidth(m_button->sizeHint().width());
    m_figure->addItems({tr("Areas: time"), tr("Areas: triangles"), tr("Areas: memory"), tr("Areas: bodies")});
    m_figure->setAccessibleName(tr("What the areas tell"));
    m_line->setObjectName(QStringLiteral("costLine"));
    m_line->setWordWrap(true);
    m_tree->setObjectName(QStringLiteral("costTree"));
    m_tree->setAccessibleName(tr("Cost of each branch"));
    m_tree->setHeaderLabels({tr("Node"), tr("Time, ms"), tr("±, ms"), tr("Processor, ms"),
                             tr("Graphics card, ms"), tr("Triangles"), tr("Bodies"), tr("Draw calls"),
                             tr("Memory, kB")});
    m_tree->setUniformRowHeights(true);
    m_hints->setObjectName(QStringLiteral("costHints"));
    m_hints->setAccessibleName(tr("Hints"));
    m_hints->setWordWrap(true);
    auto* top = new QHBoxLayout;
    top->addWidget(m_button);
    top->addWidget(m_figure);
    top->addWidget(m_line, 1);
    auto* parts = new QSplitter;
    for (QWidget* part :
         {static_cast<QWidget*>(m_tree), static_cast<QWidget*>(m_map), static_cast<QWidget*>(m_hints)})
        parts->addWidget(part);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(parts, 1);
    connect(m_button, &QPushButton::clicked, this, [this] { m_run.isRunning() ? clear() : measure(); });
    connect(&m_run, &CostRun::advanced, this, &CostPanel::showProgress);
    connect(&m_run, &CostRun::finished, this, &CostPanel::showResult);
    connect(m_figure, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int figure) { m_map->show(&m_run.getCosts(), Figures[figure]); });
    connect(m_map, &TreeMap::chosen, this, &CostPanel::chooseBranch);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        selectInScene(m_run.getCosts().branches[item->data(Name, Qt::UserRole).toUInt()].node.get());
    });
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (!item)
            return;
        const int branch = item->data(Name, Qt::UserRole).toInt();
        m_map->choose(branch);
        m_line->setText(whatIf(m_run.getCosts().branches[static_cast<std::size_t>(branch)]));
    });
    connect(m_hints, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        selectInScene(m_found[static_cast<std::size_t>(m_hints->row(item))].node.get());
    });
}

void CostPanel::measure()
{
    clear();
    SpxSceneServices* services = SpxSceneServices::getInstance();
    SoNode* root = services ? services->getSceneRoot() : nullptr;
    const SpxViewLook* look = SpxViewLook::getInstance();
    const bool hasView = look && look->getViewCamera() && !look->getViewSize().isEmpty();
    if (root)
        m_run.start(root, hasView ? look->getViewCamera() : nullptr,
                    hasView ? look->getViewSize() : QSize(800, 600));
    else
        m_line->setText(tr("The cost cannot be told: no scene is open; open one first."));
}

void CostPanel::clear()
{
    m_tree->clear();
    m_hints->clear();
    m_items.clear();
    m_found.clear();
    m_run.clear();
    m_map->show(&m_run.getCosts(), Figures[m_figure->currentIndex()]);
    m_button->setText(tr("Measure Cost"));
    m_line->clear();
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
    if (!problem.isEmpty() || costs.branches.empty())
        return;
    fillTree();
    fillHints();
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
        item->setText(Name, nameOf(*branch.node));
        item->setData(Name, Qt::UserRole, static_cast<int>(i));
        setNumber(*item, Time, branch.getTime(), branch.isMeasured);
        setNumber(*item, Spread, branch.spread, branch.isMeasured);
        setNumber(*item, Processor, branch.processor, branch.isMeasured);
        setNumber(*item, Graphics, branch.graphics, branch.isMeasured && branch.graphics >= 0);
        setNumber(*item, Triangles, trianglesOf(branch));
        setNumber(*item, Bodies, bodiesOf(branch));
        setNumber(*item, DrawCalls, static_cast<double>(branch.drawCalls), branch.isMeasured);
        setNumber(*item, Memory, memoryOf(branch) / 1000);
    }
    m_tree->topLevelItem(0)->setExpanded(true);
    m_tree->setSortingEnabled(true);
    m_tree->sortItems(Time, Qt::DescendingOrder);
    for (int column = 0; column < NumColumns; ++column)
        m_tree->resizeColumnToContents(column);
}

void CostPanel::fillHints()
{
    m_found = findCostHints(m_run.getCosts(), m_run.getSize().width(), m_run.getSize().height());
    for (const SoCostHint& hint : m_found)
        m_hints->addItem(tr("“%1”: %2").arg(nameOf(*hint.node), QString::fromStdString(hint.sentence)));
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

} // namespace profiler

// SPDX-License-Identifier: MIT
#pragma once

#include "cost/CostColumns.h"
#include "cost/CostRun.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace profiler
{

class TreeMap;

/// The content of the dock "Cost": what each branch of the scene costs, as a tree and as areas, and what
/// could be done about it. GUI thread only.
class CostPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CostPanel(QWidget* parent = nullptr);

    CostRun& getRun() { return m_run; }
    /// Measures the open scene.
    void measure();
    void clear();
    /// Hides the chosen branch, with nothing written to the scene, and measures with and without it; or shows
    /// it again.
    void setWithout(bool on);

protected:
    /// The view has its colours while this is in sight.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeTools(QLayout& top);
    void makeParts(QLayout& layout);
    void connectParts();
    bool findView(const SoCamera*& camera, QSize& size) const;
    SoHiding findHidden() const;
    const SoBranchCost* chosenBranch() const;
    void branchChosen();
    void showColors();
    void keepOrder(int column, Qt::SortOrder order);
    void fillBranch(QTreeWidgetItem& item, const SoBranchCost& branch);
    void showProgress();
    void showResult(const QString& problem);
    void fillTree();
    void fillHints();
    void chooseBranch(int branch);
    void selectInScene(const SoNode* node);
    QString whatIf(const SoBranchCost& branch) const;
    QString whatIs(const SoWhatIfMeter& meter) const;

    CostRun m_run;
    QPushButton* m_button;
    QPushButton* m_without;
    QComboBox* m_figure;
    QComboBox* m_colors;
    QLabel* m_line;
    QTreeWidget* m_tree;
    TreeMap* m_map;
    QListWidget* m_hints;
    std::vector<QTreeWidgetItem*> m_items; // of the branches
    std::vector<SoCostHint> m_found;
    SoRef<SoNode> m_hiddenNode; // by setWithout()
    CostColumns m_columns;
};

} // namespace profiler

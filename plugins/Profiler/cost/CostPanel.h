// SPDX-License-Identifier: MIT
#pragma once

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

private:
    void showProgress();
    void showResult(const QString& problem);
    void fillTree();
    void fillHints();
    void chooseBranch(int branch);
    void selectInScene(const SoNode* node);
    QString whatIf(const SoBranchCost& branch) const;

    CostRun m_run;
    QPushButton* m_button;
    QComboBox* m_figure;
    QLabel* m_line;
    QTreeWidget* m_tree;
    TreeMap* m_map;
    QListWidget* m_hints;
    std::vector<QTreeWidgetItem*> m_items; // of the branches
    std::vector<SoCostHint> m_found;
};

} // namespace profiler

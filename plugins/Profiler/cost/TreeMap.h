// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/costs/SoCosts.h>

#include <QWidget>

namespace profiler
{

/// Branches as areas within areas, each as large as its part of a figure. A click, or the arrow keys, choose
/// one.
class TreeMap : public QWidget
{
    Q_OBJECT

public:
    /// What the areas tell.
    using Figure = double (*)(const SoBranchCost& branch);
    struct Area {
        QRectF place;
        int branch;
        int depth;
    };

    explicit TreeMap(QWidget* parent = nullptr);

    /// They have to outlive what is shown.
    void show(const SoCosts* costs, Figure figure);
    /// Its areas, each before those within it.
    const std::vector<Area>& getAreas() const { return m_areas; }
    void choose(int branch);
    int getChosen() const { return m_chosen; }

    QSize sizeHint() const override { return {240, 160}; }

signals:
    void chosen(int branch);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();
    void split(int branch, QRectF place, int depth);

    const SoCosts* m_costs = nullptr;
    Figure m_figure = nullptr;
    std::vector<std::vector<int>> m_children;
    std::vector<Area> m_areas;
    int m_chosen = -1;
};

/// The name of the node, or its type.
QString nameOf(const SoNode& node);

} // namespace profiler

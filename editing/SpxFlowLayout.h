// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>

#include <QLayout>

#include <memory>
#include <vector>

/// Lays widgets out one after the other, in as many lines as its width needs, so that a row of tools fits
/// into a narrow dock. What is left of a line goes to those in it whose size policy expands. No wider than
/// the widest of them has to be. Owns its items, not their widgets, as every layout does. GUI thread only.
class SPX_EDITING_API SpxFlowLayout : public QLayout
{
public:
    explicit SpxFlowLayout(QWidget* parent = nullptr);
    ~SpxFlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    using Items = std::vector<std::unique_ptr<QLayoutItem>>;

    std::vector<std::vector<QLayoutItem*>> linesIn(int width) const;
    int place(const QRect& area, bool moves) const;

    Items m_items;
};

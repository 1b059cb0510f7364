// SPDX-License-Identifier: MIT
#pragma once

#include "EdLineEditGroup.h"
#include "EdSFLineWidget.h"

class QGridLayout;

/// Edits a value of many numbers: a line with its text, and a button that opens a small grid with one input
/// for each.
class EdPopupWidget : public EdSFLineWidget
{
    Q_OBJECT

public:
    void load() override;
    void refresh() override;
    bool edited() override;
    using EdSFLineWidget::applyChanges;

public slots:
    /// Applies the grid.
    void applyChanges() override;

protected slots:
    /// Opens the grid beside the button, or closes it.
    void managePopFramePos();

protected:
    EdPopupWidget(int rows, int columns, const char* name);

    /// kind 0: none; 1: 16 bits; 2: integers; 3: floats; 4: doubles. Others change nothing.
    void setValidator(int kind);
    void revertCursorPosition() { m_cells.revertCursorPosition(); }

    /// The texts of the field's numbers, row by row; empty without a field of the right type.
    virtual QStringList cellTexts() const = 0;
    /// Writes the field, with what was changed in the cells.
    virtual void writeCells(const EdLineEditGroup& cells) = 0;

private:
    void buildButton();
    void buildPopup();
    void fitPopup();
    EdLineEdit* buildCell(int row, int column);

    QPushButton* m_editButton = nullptr;
    QFrame* m_popup = nullptr;
    QGridLayout* m_popupFrameLayout = nullptr;
    EdLineEditGroup m_cells;
    int m_rows;
    int m_columns;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFieldWidget.h"

class EdTablePopupLineEdit;
class QFrame;

/// A list whose elements are too large for a table row: the table only lists them, and a popup edits the
/// element that the access box names, as a grid of numbers.
class EdTablePopupWidget : public EdMFieldWidget
{
    Q_OBJECT

public:
    EdTablePopupWidget(int rows, int columns, const char* name);

    void load() override;
    void setField(SoField* field) override;
    void refresh() override;
    /// F2 in the access box opens the grid: neither the button nor the table takes the keyboard.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The text of number `index` of an element.
    virtual QString getPopupValue(int row, int index);

    void setValidator(int kind);
    /// Row -1 is the row to edit. Every change of a text writes the element and records a command
    /// (decisions.md: popup-every-change).
    void updatePopupLines(int row);
    void managePopFramePos();
    void revertCursorPosition();

    /// The table cannot be clicked, so the access box names the row.
    int rowToEdit() const;

public slots:
    void setEditFrame();

protected:
    const QVector<EdTablePopupLineEdit*>& lines() const { return m_lines; }

private:
    void buildPopup();

    int m_rows;
    int m_columns;
    QPushButton* m_editButton = nullptr;
    QFrame* m_popup = nullptr;
    QGridLayout* m_popupFrameLayout = nullptr;
    QVector<EdTablePopupLineEdit*> m_lines;
};

// SPDX-License-Identifier: MIT
#pragma once

#include "EdTablePopupWidget.h"

#include <xsg/fields/SoMFMatrix.h>

/// Edits lists of matrices, each in a popup of 4 by 4 numbers.
class EdMFMatrixWidget : public EdTablePopupWidget
{
    Q_OBJECT

public:
    explicit EdMFMatrixWidget(const char* name = nullptr);

    void load() override;
    bool checkField(SoField* field) override;
    void setField(SoField* field) override;
    int getTextFlags() override { return Qt::AlignLeft; }
    /// The text of the whole field, whatever the row (decisions.md: matrix-text). Made once per change of the
    /// field.
    QString getFieldValue(int row, int column) const override;
    /// The start of it, read from as many elements as that takes: a long list is not walked to be drawn.
    QString getCellText(int row, int column, int length) const override;
    QString getPopupValue(int row, int index) override;
    /// Takes the numbers from the popup; column and text are not read.
    void set1Value(int row, int column, QString text) override;
    void swapRows(int row1, int row2) override;

private:
    SoMFMatrix* matrices() const { return static_cast<SoMFMatrix*>(editedField()); }
    const QString& wholeText() const;

    mutable QString m_text;
    mutable const SoMField* m_textField = nullptr;
    mutable quint32 m_textChange = 0;
};

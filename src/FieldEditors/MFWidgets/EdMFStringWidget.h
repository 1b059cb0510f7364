// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFieldWidget.h"

#include <xsg/fields/SoMFString.h>

/// Edits lists of texts, one bare text per row.
class EdMFStringWidget : public EdMFieldWidget
{
    Q_OBJECT

public:
    explicit EdMFStringWidget(const char* name = nullptr);

    void load() override;
    bool checkField(SoField* field) override;
    int getTextFlags() override { return Qt::AlignLeft; }
    QString getFieldValue(int row, int column) const override;
    QString getCellText(int row, int column, int length) const override;
    void set1Value(int row, int column, QString text) override;
    void swapRows(int row1, int row2) override;

    virtual void setSingleFieldValue(const SbString& value, int row, int column);
    SbString getSingleFieldValue(int row, int column) const;

protected:
    void initClass();

private:
    SoMFString* texts() const { return static_cast<SoMFString*>(editedField()); }
};

// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

#include <xsg/values/SbString.h>

class EdLineEdit;

/// Edits any single-value field as its text. Each keystroke is applied; a text that the field refuses stays
/// for the user to correct.
class EdSFLineWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    explicit EdSFLineWidget(const char* name = nullptr);

    void load() override;
    void setField(SoField* field) override;
    void refresh() override;
    bool edited() override;
    using EdSFieldWidget::applyChanges;

public slots:
    virtual void applyChanges(const QString& text);
    virtual void setCursorPosition(int oldPos, int newPos);

private:
    void showFieldText();

    EdLineEdit* m_lineEdit = nullptr;
    int m_cursorPosition = 0;
    SbString m_writtenText; // what the field gave after the last write from here; null for none
};

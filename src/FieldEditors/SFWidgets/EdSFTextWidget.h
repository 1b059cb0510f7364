// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

class EdLineEdit;

/// What the editors of texts share: a line edit that shows the bare text and applies it whenever editing
/// ends, changed or not.
///
/// Field is the class of the edited field.
template <class Field>
class EdSFTextWidget : public EdSFieldWidget
{
public:
    void load() override;
    void refresh() override;
    bool edited() override;

protected:
    void applyChanges() override;
    explicit EdSFTextWidget(const char* name);

    EdLineEdit* lineEdit() const { return m_lineEdit; }

private:
    void write(Field& field) const;

    EdLineEdit* m_lineEdit = nullptr;
};

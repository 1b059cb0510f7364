// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFColumnsWidget.h"

#include <array>

class QSpinBox;

/// Two integers in spin boxes; every step is applied at once.
class EdSF2iSpinBox : public EdSFColumnsWidget
{
    Q_OBJECT

public:
    void load() override;
    void refresh() override;

protected:
    void applyChanges() override;
    using Pair = std::array<int, 2>;

    EdSF2iSpinBox(const char* name, int limits);

    /// kind 0: 16 bits; 1 and 2: 32 bits. Others change nothing.
    void setLimits(int kind);
    /// The field's numbers; false without a field of the right type.
    virtual bool read(Pair& numbers) const = 0;
    virtual void write(const Pair& numbers) = 0;

    void dropTyping() override;

private:
    QWidget* buildInput() override;

    int m_limits;
    QList<QSpinBox*> m_boxes;
    Pair m_shown{}; // a box that still has its number stands for what the field has
};

/// Field is the class of the edited field.
template <class Field>
class EdSF2iSpinBoxOf : public EdSF2iSpinBox
{
protected:
    using EdSF2iSpinBox::EdSF2iSpinBox;

    bool read(Pair& numbers) const override
    {
        const auto* field = getFieldAs<Field>();
        if (field)
            numbers = {field->getValue()[0], field->getValue()[1]};
        return field;
    }
    void write(const Pair& numbers) override { getFieldAs<Field>()->setValue(numbers[0], numbers[1]); }
};

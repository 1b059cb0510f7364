// SPDX-License-Identifier: MIT
#pragma once

#include "EdLineEditGroup.h"
#include "EdSFColumnsWidget.h"

#include <vector>

/// What the editors of several floats share: a line edit for each. A further one says only which numbers its
/// field has:
///
///     class EdSFVec3fWidget : public EdSFVectorOf<EdSFFloatsWidget, SoSFVec3f> { ... };
class EdSFFloatsWidget : public EdSFColumnsWidget
{
    Q_OBJECT

public:
    void load() override;
    void refresh() override;
    bool edited() override;

protected:
    void applyChanges() override;
    using Floats = std::vector<float>;
    using EdSFColumnsWidget::EdSFColumnsWidget;

    /// The field's numbers, in the order of the captions; empty without a field of the right type.
    virtual Floats read() const = 0;
    virtual void write(const Floats& numbers) = 0;
    /// Moves every cursor to the beginning, so that long numbers show it.
    void revertCursorPosition() { m_inputs.revertCursorPosition(); }

private:
    QWidget* buildInput() override;

    EdLineEditGroup m_inputs;
};

/// For a field whose value is a vector of floats.
template <class Base, class Field>
class EdSFVectorOf : public Base
{
protected:
    using Base::Base;
    using Vector = typename Field::Value;

    std::vector<float> read() const override
    {
        const auto* field = this->template getFieldAs<Field>();
        if (!field)
            return {};
        const float* numbers = field->getValue().getValue();
        return {numbers, numbers + Vector::Size};
    }
    void write(const std::vector<float>& numbers) override
    {
        this->template getFieldAs<Field>()->setValue(Vector(numbers.data()));
    }
};

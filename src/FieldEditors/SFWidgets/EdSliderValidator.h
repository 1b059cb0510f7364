// SPDX-License-Identifier: MIT
#pragma once

#include "EdValidators.h"

/// The validator of a slider's line edit. Its range is what the slider clamps to; what may be typed is
/// whatever the type of the number holds.
template <class Validator>
class EdSliderValidator : public Validator
{
public:
    template <class... Range>
    explicit EdSliderValidator(QObject* parent, Range... wholeRange)
        : Validator(wholeRange..., parent)
        , m_whole(wholeRange...)
    {
    }

    QValidator::State validate(QString& text, int& position) const override
    {
        return m_whole.validate(text, position);
    }

    template <class Number>
    void limitTo(Number bottom, Number top)
    {
        this->setBottom(bottom);
        this->setTop(top);
    }
    /// Narrows what may be typed, and the range with it.
    template <class Number>
    void setWholeRange(Number bottom, Number top)
    {
        m_whole.setBottom(bottom);
        m_whole.setTop(top);
        limitToWholeType();
    }
    void limitToWholeType() { limitTo(m_whole.bottom(), m_whole.top()); }

private:
    Validator m_whole;
};

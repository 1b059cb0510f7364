// SPDX-License-Identifier: MIT
#pragma once

#include <QValidator>

/// Bounds is the type of the range. The text is parsed as a 32-bit number whatever the range, on purpose, so
/// that an input above 4294967295 is invalid even where the range would hold it.
template <class Bounds>
class UnsignedValidator : public QValidator
{
public:
    UnsignedValidator(QObject* parent, Bounds top)
        : QValidator(parent)
        , m_top(top)
    {
    }

    void setRange(Bounds bottom, Bounds top)
    {
        m_bottom = bottom;
        m_top = top;
    }
    Bounds bottom() const { return m_bottom; }
    Bounds top() const { return m_top; }

    State validate(QString& input, int& /*pos*/) const override
    {
        if (input.isEmpty())
            return Acceptable;
        bool ok = false;
        const quint32 value = input.toUInt(&ok);
        if (!ok)
            return Invalid;
        return value >= m_bottom && value <= m_top ? Acceptable : Intermediate;
    }

private:
    Bounds m_bottom = 0;
    Bounds m_top;
};

/// Accepts unsigned decimal integers within a range; an empty text counts as acceptable.
class QUIntValidator : public UnsignedValidator<quint32>
{
    Q_OBJECT

public:
    explicit QUIntValidator(QObject* parent = nullptr);
    ~QUIntValidator() override;
};

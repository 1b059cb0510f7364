// SPDX-License-Identifier: MIT
#pragma once

#include "EdSlider.h"

#include <algorithm>

/// The range and the value of a slider, for every type of number. The range takes in each value that is typed
/// or shown, unless it is fixed: then it only clamps.
template <class Number>
class EdNumberSlider : public EdSlider
{
public:
    using EdSlider::EdSlider;

    /// One end of the range; ignored while the range is fixed.
    void setTop(Number top)
    {
        if (m_boundFixed)
            return;
        m_top = top;
        rangeChanged();
    }
    void setBottom(Number bottom)
    {
        if (m_boundFixed)
            return;
        m_bottom = bottom;
        rangeChanged();
    }
    Number getTop() const { return m_top; }
    Number getBottom() const { return m_bottom; }
    bool isBoundFixed() const { return m_boundFixed; }
    /// The number that the slider holds.
    Number getNumber() const { return m_value; }

    void setValueFromSlider(int position) override
    {
        setPosition(position);
        m_value = numberAt(position);
    }

protected:
    virtual int positionOf(Number value) const = 0;
    virtual Number numberAt(int position) const = 0;

    void setBoundFixed(bool fixed) { m_boundFixed = fixed; }
    void setRange(Number bottom, Number top)
    {
        m_bottom = bottom;
        m_top = top;
        rangeChanged();
    }
    /// Takes a value into the range, or the range to the value.
    void take(Number value)
    {
        m_value = m_boundFixed ? std::max(m_bottom, std::min(value, m_top)) : value;
        if (m_value > m_top)
            setTop(m_value);
        if (m_value < m_bottom)
            setBottom(m_value);
        setPosition(positionOf(m_value));
    }
    /// A value that no range can hold.
    void takeOutside(Number value)
    {
        m_value = value;
        setPosition(positionOf(m_bottom));
    }

private:
    void rangeChanged()
    {
        setPosition(positionOf(m_value));
        setSliderRange(positionOf(m_bottom), positionOf(std::max(m_bottom, m_top)));
    }

    Number m_bottom = 0;
    Number m_top = 0;
    Number m_value = 0;
    bool m_boundFixed = false;
};

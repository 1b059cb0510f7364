// SPDX-License-Identifier: MIT
#pragma once

/// The range of values that an editor offers for a numeric field: one pair for each kind of number, and
/// whether the user may go beyond.
class EdRangeComponent
{
public:
    /// Each constructor fills one pair and leaves the others at 0.
    EdRangeComponent() = default;
    EdRangeComponent(int minimum, int maximum, bool boundFixed);
    EdRangeComponent(float minimum, float maximum, bool boundFixed);
    EdRangeComponent(double minimum, double maximum, bool boundFixed);

    /// Each setter writes its own pair only.
    void setfRange(float minimum, float maximum);
    void setdRange(double minimum, double maximum);
    void setiRange(int minimum, int maximum);
    void setBoundFixed(bool boundFixed) { m_boundFixed = boundFixed; }

    float getfMin() const { return m_floatMinimum; }
    float getfMax() const { return m_floatMaximum; }
    /// In single precision (decisions.md: range-precision).
    float getdMin() const { return m_doubleMinimum; }
    float getdMax() const { return m_doubleMaximum; }
    int getiMin() const { return m_intMinimum; }
    int getiMax() const { return m_intMaximum; }
    /// True for a hard bound; false where the range only says what the slider starts with.
    bool isBoundFixed() const { return m_boundFixed; }

    bool operator==(const EdRangeComponent& other) const;
    bool operator!=(const EdRangeComponent& other) const { return !(*this == other); }

private:
    float m_floatMinimum = 0.F;
    float m_floatMaximum = 0.F;
    float m_doubleMinimum = 0.F;
    float m_doubleMaximum = 0.F;
    int m_intMinimum = 0;
    int m_intMaximum = 0;
    bool m_boundFixed = false;
};

// SPDX-License-Identifier: MIT
#include "EdRangeComponent.h"

EdRangeComponent::EdRangeComponent(int minimum, int maximum, bool boundFixed)
    : m_intMinimum(minimum)
    , m_intMaximum(maximum)
    , m_boundFixed(boundFixed)
{
}

EdRangeComponent::EdRangeComponent(float minimum, float maximum, bool boundFixed)
    : m_floatMinimum(minimum)
    , m_floatMaximum(maximum)
    , m_boundFixed(boundFixed)
{
}

EdRangeComponent::EdRangeComponent(double minimum, double maximum, bool boundFixed)
    : m_doubleMinimum(float(minimum))
    , m_doubleMaximum(float(maximum))
    , m_boundFixed(boundFixed)
{
}

void EdRangeComponent::setfRange(float minimum, float maximum)
{
    m_floatMinimum = minimum;
    m_floatMaximum = maximum;
}

void EdRangeComponent::setdRange(double minimum, double maximum)
{
    m_doubleMinimum = float(minimum);
    m_doubleMaximum = float(maximum);
}

void EdRangeComponent::setiRange(int minimum, int maximum)
{
    m_intMinimum = minimum;
    m_intMaximum = maximum;
}

bool EdRangeComponent::operator==(const EdRangeComponent& other) const
{
    return m_intMinimum == other.m_intMinimum && m_intMaximum == other.m_intMaximum &&
           m_floatMinimum == other.m_floatMinimum && m_floatMaximum == other.m_floatMaximum &&
           m_doubleMinimum == other.m_doubleMinimum && m_doubleMaximum == other.m_doubleMaximum &&
           m_boundFixed == other.m_boundFixed;
}

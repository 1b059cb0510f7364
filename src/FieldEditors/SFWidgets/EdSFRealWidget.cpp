// SPDX-License-Identifier: MIT
#include "EdSFRealWidget.h"

#include "EdFieldEdits.h"
#include "EdFieldRange.h"

#include <xsg/fields/SoSFDouble.h>
#include <xsg/fields/SoSFFloat.h>

#include <cmath>

namespace
{

constexpr const char* defaultRange(const SoSFFloat*)
{
    return "floatField";
}

constexpr const char* defaultRange(const SoSFDouble*)
{
    return "doubleField";
}

} // namespace

template <class Field>
EdSFRealWidget<Field>::EdSFRealWidget(SFFrameType frameType, const char* name)
    : EdSFieldWidget(frameType, name)
    , m_slider(qobject_cast<EdRealSlider*>(slider()))
{
}

template <>
void EdSFRealWidget<SoSFFloat>::setRange(const EdRangeComponent& range)
{
    m_slider->setValidLimits(range.getfMin(), range.getfMax(), range.isBoundFixed());
}

template <>
void EdSFRealWidget<SoSFDouble>::setRange(const EdRangeComponent& range)
{
    m_slider->setValidLimits(range.getdMin(), range.getdMax(), range.isBoundFixed());
}

template <class Field>
void EdSFRealWidget<Field>::setField(SoField* field)
{
    if (field) {
        m_range = rangeOfField(*field, defaultRange(static_cast<Field*>(nullptr)));
        setRange(m_range);
    }
    EdSFieldWidget::setField(field);
}

template <class Field>
void EdSFRealWidget<Field>::refresh()
{
    const Field* field = getFieldAs<Field>();
    if (!field)
        return;
    const double value = field->getValue();
    if (!m_slider->isHeld() && std::isfinite(value))
        growTo(value);
    m_slider->setRealValue(value);
    EdSFieldWidget::refresh();
}

// A fixed range is then fixed at its new ends.
template <class Field>
void EdSFRealWidget<Field>::growTo(double value)
{
    if (value > m_slider->getTop())
        m_slider->setValidLimits(m_slider->getBottom(), value, m_slider->isBoundFixed());
    if (value < m_slider->getBottom())
        m_slider->setValidLimits(value, m_slider->getTop(), m_slider->isBoundFixed());
}

template <class Field>
void EdSFRealWidget<Field>::applyChanges()
{
    auto* field = getFieldAs<Field>();
    if (!field || !m_slider->takeTyping())
        return;
    EdFieldEdits::write(field, m_slider->savedText(),
                        [&] { field->setValue(static_cast<typename Field::Value>(m_slider->getNumber())); });
}

template <class Field>
bool EdSFRealWidget<Field>::edited()
{
    return m_slider->isEdited();
}

template class EdSFRealWidget<SoSFFloat>;
template class EdSFRealWidget<SoSFDouble>;

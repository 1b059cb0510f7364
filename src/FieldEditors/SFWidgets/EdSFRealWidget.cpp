#include "EdSFRealWidget.h"

#include "EdFieldEdits.h"
#include "EdRangeSettings.h"

#include <xsg/core/SoFieldContainer.h>
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

// All three take the same row of the table; that is meant.
bool hasUnitRange(const SoFieldContainer* container)
{
    for (const char* name : {"Complexity", "Material", "DirectionalLight"}) {
        const SoType type = SoType::fromName(name);
        if (!type.isBad() && container->getTypeId().isDerivedFrom(type))
            return true;
    }
    return false;
}

EdRangeComponent rangeOf(const SoField* field, const char* defaultField)
{
    const EdRangeSettings settings;
    const SoFieldContainer* container = field ? field->getContainer() : nullptr;
    if (container && hasUnitRange(container))
        return settings.getFieldRange("Complexity", "value");
    return settings.getFieldRange("DefaultNode", defaultField);
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
    m_range = rangeOf(field, defaultRange(static_cast<Field*>(nullptr)));
    setRange(m_range);
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

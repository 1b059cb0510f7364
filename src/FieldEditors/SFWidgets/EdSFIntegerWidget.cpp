// SPDX-License-Identifier: MIT
#include "EdSFIntegerWidget.h"

#include "EdFieldEdits.h"
#include "EdRangeSettings.h"

#include <scopix/editing/SpxText.h>
#include <xsg/core/SoSField.h>

template <class Slider>
EdSFIntegerWidget<Slider>::EdSFIntegerWidget(SFFrameType frameType, const char* name)
    : EdSFieldWidget(frameType, name)
    , m_slider(qobject_cast<Slider*>(slider()))
{
}

template <class Slider>
void EdSFIntegerWidget<Slider>::load()
{
    using Number = decltype(m_slider->getNumber());
    EdSFieldWidget::load();
    m_range = EdRangeSettings().getFieldRange("DefaultNode", "intField");
    m_slider->setValidLimits(static_cast<Number>(m_range.getiMin()), static_cast<Number>(m_range.getiMax()),
                             m_range.isBoundFixed());
}

template <class Slider>
void EdSFIntegerWidget<Slider>::refresh()
{
    const SoSField* field = getSField();
    if (!field)
        return;
    SbString text;
    field->get(text);
    m_slider->setValue(SpxText::toQString(text));
    EdSFieldWidget::refresh();
}

template <class Slider>
void EdSFIntegerWidget<Slider>::applyChanges()
{
    SoSField* field = getSField();
    if (!field || !m_slider->takeTyping())
        return;
    // Decimal, whatever the slider shows.
    const SbString text = SpxText::toSbString(QString::number(m_slider->getNumber()));
    EdFieldEdits::write(field, m_slider->savedText(), [&] { field->set(text); });
}

template <class Slider>
bool EdSFIntegerWidget<Slider>::edited()
{
    return m_slider->isEdited();
}

template class EdSFIntegerWidget<EdIntSlider>;
template class EdSFIntegerWidget<EdUIntSlider>;

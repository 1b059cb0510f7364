// SPDX-License-Identifier: MIT
#include "EdSFBitMaskWidget.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFBitMask.h>

#include <QCheckBox>
#include <QFrame>
#include <QVBoxLayout>

namespace
{

int valueOf(const SoSFBitMask& field, const QString& name)
{
    int value = 0;
    field.findValue(SbName(name.toLatin1().constData()), value);
    return value;
}

} // namespace

EdSFBitMaskWidget::EdSFBitMaskWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSFBitMask::getClassTypeId(), name);
}

void EdSFBitMaskWidget::load()
{
    EdSFieldWidget::load(); // the boxes come with each field
}

void EdSFBitMaskWidget::unload()
{
    clearEditor();
    EdSFieldWidget::unload();
}

void EdSFBitMaskWidget::setField(SoField* field)
{
    clearEditor();
    EdSFieldWidget::setField(field);
    initClass();
}

void EdSFBitMaskWidget::clearEditor()
{
    qDeleteAll(m_boxes);
    m_boxes.clear();
    delete m_boxLayout;
    m_boxLayout = nullptr;
}

void EdSFBitMaskWidget::initClass()
{
    setSpacers(0, 0);
    const auto* field = getFieldAs<SoSFBitMask>();
    if (!field)
        return;
    int count = 0;
    const int* values = nullptr;
    const SbName* names = nullptr;
    field->getEnums(count, values, names);
    m_boxLayout = new QVBoxLayout;
    for (int i = 0; i < count; ++i) {
        if (values[i] != 0)
            addBox(SpxText::toQString(names[i]));
    }
    editLayout()->addLayout(m_boxLayout);
    checkBoxes(*field);
}

void EdSFBitMaskWidget::addBox(const QString& name)
{
    auto* box = new QCheckBox(name, editionFrame());
    box->setAccessibleName(name);
    m_boxLayout->addWidget(box);
    connect(box, &QCheckBox::clicked, this, &EdSFBitMaskWidget::setBitMaskValue);
    m_boxes.push_back(box);
}

// A name of several bits is checked already when one of them is set (decisions.md: bit-mask-partial).
void EdSFBitMaskWidget::checkBoxes(const SoSFBitMask& field)
{
    for (QCheckBox* box : m_boxes)
        box->setChecked(valueOf(field, box->text()) & field.getValue());
    m_shown = field.getValue();
}

void EdSFBitMaskWidget::refresh()
{
    if (const auto* field = getFieldAs<SoSFBitMask>()) {
        if (m_shown != field->getValue())
            checkBoxes(*field);
    }
    EdSFieldWidget::refresh();
}

void EdSFBitMaskWidget::applyChanges() {}

// Bits that no box stands for are lost (decisions.md: bit-mask-unnamed-bits).
void EdSFBitMaskWidget::setBitMaskValue()
{
    auto* field = getFieldAs<SoSFBitMask>();
    if (!field)
        return;
    int value = 0;
    for (const QCheckBox* box : m_boxes) {
        if (box->isChecked())
            value |= valueOf(*field, box->text());
    }
    m_shown = value; // the boxes stay as the user left them
    field->SoSFEnum::setValue(value);
}

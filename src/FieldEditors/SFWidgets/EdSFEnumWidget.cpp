// SPDX-License-Identifier: MIT
#include "EdSFEnumWidget.h"

#include "EdFieldEdits.h"
#include "EdWheelFocusFilter.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFEnum.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>

EdSFEnumWidget::EdSFEnumWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSFEnum::getClassTypeId(), name);
}

void EdSFEnumWidget::load()
{
    EdSFieldWidget::load();
    m_comboBox = new QComboBox(editionFrame());
    m_comboBox->setObjectName(QStringLiteral("comboBox"));
    m_comboBox->setAccessibleName(tr("Value"));
    EdWheelFocusFilter::install(m_comboBox);
    editLayout()->addWidget(m_comboBox, 1);
    connect(m_comboBox, qOverload<int>(&QComboBox::activated), this, &EdSFEnumWidget::setCommandValue);
}

void EdSFEnumWidget::setField(SoField* field)
{
    m_comboBox->clear();
    if (const auto* enumeration = dynamic_cast<const SoSFEnum*>(field)) {
        int count = 0;
        const int* values = nullptr;
        const SbName* names = nullptr;
        enumeration->getEnums(count, values, names);
        for (int i = 0; i < count; ++i)
            m_comboBox->addItem(SpxText::toQString(names[i]), values[i]);
    }
    EdSFieldWidget::setField(field);
}

void EdSFEnumWidget::refresh()
{
    const SoSField* field = getSField();
    if (!field)
        return;
    SbString text;
    field->get(text);
    m_comboBox->setCurrentIndex(m_comboBox->findText(SpxText::toQString(SbName(text))));
    EdSFieldWidget::refresh();
}

void EdSFEnumWidget::applyChanges()
{
    auto* field = getFieldAs<SoSFEnum>();
    if (!field || m_comboBox->currentIndex() < 0)
        return;
    const SbName name(m_comboBox->currentText().toLatin1().constData());
    EdFieldEdits::write(field, [&] { field->setValue(name); });
}

// SPDX-License-Identifier: MIT
#include "EdSFBoolWidget.h"

#include "EdFieldEdits.h"
#include "FieldEditorSettings.h"

#include <xsg/fields/SoSFBool.h>

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>

EdSFBoolWidget::EdSFBoolWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSFBool::getClassTypeId(), name);
}

void EdSFBoolWidget::load()
{
    EdSFieldWidget::load();
    m_box = new QCheckBox(editionFrame());
    m_box->setObjectName(QStringLiteral("m_box"));
    m_box->setAccessibleName(tr("Value"));
    const QSize stated(xsgsettings_fieldEditor(QStringLiteral("SFBoolWidth")),
                       xsgsettings_fieldEditor(QStringLiteral("SFComponentHeight")));
    m_box->setFixedSize(stated.expandedTo(m_box->sizeHint())); // the tick grows with the screen's resolution
    editLayout()->addWidget(m_box);
    editLayout()->addStretch(1);
    connect(m_box, &QCheckBox::clicked, this, &EdSFBoolWidget::setCommandValue);
}

void EdSFBoolWidget::refresh()
{
    const auto* field = getFieldAs<SoSFBool>();
    if (!field)
        return;
    m_box->setChecked(field->getValue());
    EdSFieldWidget::refresh();
}

void EdSFBoolWidget::applyChanges()
{
    if (auto* field = getFieldAs<SoSFBool>())
        EdFieldEdits::write(field, [&] { field->setValue(m_box->isChecked()); });
}

// SPDX-License-Identifier: MIT
#include "EdSFColumnsWidget.h"

#include "EdFontFitting.h"
#include "FieldEditorSettings.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

EdSFColumnsWidget::EdSFColumnsWidget(const char* name, const EdColumnLook& look, const QStringList& captions)
    : EdSFieldWidget(name)
    , m_look(look)
    , m_captions(captions)
{
}

void EdSFColumnsWidget::load()
{
    EdSFieldWidget::load();
    const int margin = xsgsettings_fieldEditor(QLatin1String(m_look.marginKey));
    editLayout()->setSpacing(xsgsettings_fieldEditor(QLatin1String(m_look.spacingKey)));
    editLayout()->setContentsMargins(margin, margin, margin, margin);
    m_labels.clear();
    for (const QString& caption : qAsConst(m_captions))
        buildComponent(caption);
    setNameLabels(m_captions.toVector().constData());
}

void EdSFColumnsWidget::buildComponent(const QString& caption)
{
    auto* column = new QVBoxLayout;
    column->setObjectName(QLatin1String(m_look.layoutName));
    column->setSpacing(xsgsettings_fieldEditor(QLatin1String(m_look.columnSpacingKey)));
    if (!m_look.hasColumnMargin)
        column->setContentsMargins(0, 0, 0, 0);
    column->setSizeConstraint(QLayout::SetMinimumSize);

    auto* label = new QLabel(editionFrame());
    label->setObjectName(QLatin1String(m_look.labelName));
    setHeightFitted(label, xsgsettings_fieldEditor(QStringLiteral("SFVecLabelHeight")), 0);
    m_labels.append(label);
    column->addWidget(label);

    QWidget* input = buildInput();
    input->setObjectName(QLatin1String(m_look.inputName));
    input->setAccessibleName(caption);
    constexpr int InputFrame = 2;
    setHeightFitted(input, xsgsettings_fieldEditor(QStringLiteral("SFVecLineHeight")), InputFrame);
    column->addWidget(input);
    editLayout()->addLayout(column);
}

void EdSFColumnsWidget::setNameLabels(const QString* names)
{
    for (QLabel* label : qAsConst(m_labels))
        label->setText(tr("<p>") + *names++ + tr("</p>"));
}

// SPDX-License-Identifier: MIT
#include "EdSFColorWidget.h"

#include "EdColor.h"
#include "EdFieldEdits.h"
#include "EdFontFitting.h"
#include "FieldEditorSettings.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFColor.h>

#include <QColorDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

EdSFColorWidget::EdSFColorWidget(const char* name)
    : EdSFieldWidget(name)
{
    setFieldType(SoSFColor::getClassTypeId(), name);
}

void EdSFColorWidget::load()
{
    EdSFieldWidget::load();
    m_inputs.clear();
    buildSwatch();
    for (std::size_t i = 0; i < m_edits.size(); ++i)
        buildComponent(m_edits[i], m_labels[i]);
    m_labels[0]->setText(tr("<p align=\"right\">R</p>"));
    m_labels[1]->setText(tr("<p align=\"right\">G</p>"));
    m_labels[2]->setText(tr("<p align=\"right\">B</p>"));
    m_edits[0]->setAccessibleName(tr("Red"));
    m_edits[1]->setAccessibleName(tr("Green"));
    m_edits[2]->setAccessibleName(tr("Blue"));
    connect(m_edits[0], &QLineEdit::textChanged, this, &EdSFColorWidget::changeRValue);
    connect(m_edits[1], &QLineEdit::textChanged, this, &EdSFColorWidget::changeGValue);
    connect(m_edits[2], &QLineEdit::textChanged, this, &EdSFColorWidget::changeBValue);
    connect(m_colorDisp, &QPushButton::clicked, this, &EdSFColorWidget::getColorEditor);
}

void EdSFColorWidget::buildSwatch()
{
    m_colorDisp = new QPushButton(editionFrame());
    m_colorDisp->setObjectName(QStringLiteral("m_colorDisp"));
    m_colorDisp->setAccessibleName(tr("Choose a colour"));
    m_colorDisp->setToolTip(tr("Choose a colour"));
    m_colorDisp->setFixedSize(xsgsettings_fieldEditor(QStringLiteral("SFColorDispWidth")),
                              xsgsettings_fieldEditor(QStringLiteral("SFComponentHeight")));
    m_colorDisp->setIconSize(m_colorDisp->size());
    const int margin = xsgsettings_fieldEditor(QStringLiteral("SFColorMargin"));
    editLayout()->setContentsMargins(margin, margin, margin, margin);
    editLayout()->setSpacing(xsgsettings_fieldEditor(QStringLiteral("SFColorSpacing")));
    editLayout()->addWidget(m_colorDisp);
    displayColor();
}

void EdSFColorWidget::buildComponent(EdLineEdit*& edit, QLabel*& label)
{
    const int height = xsgsettings_fieldEditor(QStringLiteral("SFComponentHeight"));
    auto* layout = new QHBoxLayout;
    layout->setObjectName(QStringLiteral("SFColorLayout"));
    layout->setSpacing(xsgsettings_fieldEditor(QStringLiteral("SFColorInterSpacing")));
    label = new QLabel(editionFrame());
    label->setObjectName(QStringLiteral("SFColorLabel"));
    setHeightFitted(label, height, 0);
    layout->addWidget(label);
    edit = new EdLineEdit(editionFrame());
    edit->setObjectName(QStringLiteral("SFColorLine"));
    edit->setText(tr("0"));
    constexpr int InputFrame = 2;
    setHeightFitted(edit, height, InputFrame);
    setRoomFor(edit, "0.501961");
    layout->addWidget(edit, 1);
    connect(edit, &QLineEdit::returnPressed, this, &EdSFColorWidget::setCommandValue);
    connect(edit, &QLineEdit::editingFinished, this, &EdSFColorWidget::setFocusLeaveEvent);
    connect(edit, &EdLineEdit::typingTakenBack, this, [this, edit] { emit edit->textChanged(edit->text()); });
    m_inputs.add(edit);
    editLayout()->addLayout(layout, 1);
}

void EdSFColorWidget::changeRValue(const QString& text)
{
    change(0, text);
}

void EdSFColorWidget::changeGValue(const QString& text)
{
    change(1, text);
}

void EdSFColorWidget::changeBValue(const QString& text)
{
    change(2, text);
}

// The text as it was shown stands for every bit that was read.
void EdSFColorWidget::change(std::size_t component, const QString& text)
{
    const bool asShown = text == m_edits[component]->shownText();
    m_components[component] = asShown ? m_shown[component] : SpxText::toFloatOr0(text);
    displayColor();
}

QColor EdSFColorWidget::currentColor() const
{
    return toQColor(m_components[0], m_components[1], m_components[2]);
}

void EdSFColorWidget::displayColor()
{
    QPixmap pixmap(m_colorDisp->size());
    pixmap.fill(currentColor());
    m_colorDisp->setIcon(pixmap);
}

void EdSFColorWidget::getColorEditor()
{
    const QPointer<EdSFColorWidget> self(this);
    const int round = editingRound();
    const QColor chosen = QColorDialog::getColor(currentColor(), getWidgetContainer());
    // Meanwhile another field, or none, may have come.
    if (!self || round != editingRound() || !chosen.isValid())
        return;
    const std::array<int, 3> channels{chosen.red(), chosen.green(), chosen.blue()};
    for (std::size_t i = 0; i < m_edits.size(); ++i)
        m_edits[i]->setText(QString::number(channels[i] / 255.0));
    setCommandValue();
}

void EdSFColorWidget::refresh()
{
    const auto* field = getFieldAs<SoSFColor>();
    if (!field)
        return;
    const SbColor& color = field->getValue();
    for (std::size_t i = 0; i < m_edits.size(); ++i) {
        m_shown[i] = color[int(i)];
        m_edits[i]->showText(QString::number(double(m_shown[i])));
        if (!m_edits[i]->isChanged())
            m_components[i] = m_shown[i];
    }
    displayColor();
    EdSFieldWidget::refresh();
}

void EdSFColorWidget::applyChanges()
{
    auto* field = getFieldAs<SoSFColor>();
    if (!field || !m_inputs.takeTyping())
        return;
    SbColor color = field->getValue();
    for (std::size_t i = 0; i < m_edits.size(); ++i) {
        if (m_edits[i]->isChanged())
            color[int(i)] = m_components[i];
        m_edits[i]->setModified(false);
    }
    EdFieldEdits::write(field, [&] { field->setValue(color); });
}

bool EdSFColorWidget::edited()
{
    return m_inputs.isEdited();
}

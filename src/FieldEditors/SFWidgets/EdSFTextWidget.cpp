// SPDX-License-Identifier: MIT
#include "EdSFTextWidget.h"

#include "EdFieldEdits.h"
#include "EdLineEdit.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFFilePathString.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

#include <QBoxLayout>
#include <QFrame>

namespace
{

void setText(SoSFString& field, const QString& text)
{
    field.setValue(SpxText::toSbString(text));
}

// A name is Latin-1; other characters become question marks.
void setText(SoSFName& field, const QString& text)
{
    field.setValue(SbName(text.toLatin1().constData()));
}

} // namespace

template <class Field>
EdSFTextWidget<Field>::EdSFTextWidget(const char* name)
    : EdSFieldWidget(name)
{
}

template <class Field>
void EdSFTextWidget<Field>::load()
{
    EdSFieldWidget::load();
    m_lineEdit = new EdLineEdit(editionFrame());
    m_lineEdit->setObjectName(QStringLiteral("lineEdit"));
    m_lineEdit->setAccessibleName(tr("Value"));
    m_lineEdit->setFinishingAlways(true);
    editLayout()->addWidget(m_lineEdit);
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &EdSFTextWidget::setCommandValue);
}

template <class Field>
void EdSFTextWidget<Field>::refresh()
{
    const SoSField* field = getSField();
    if (!field)
        return;
    if (const auto* own = getFieldAs<Field>()) {
        m_lineEdit->showText(SpxText::toQString(own->getValue()));
    } else {
        SbString text;
        field->get(text);
        m_lineEdit->showText(SpxText::toQString(text));
    }
    EdSFieldWidget::refresh();
}

template <class Field>
void EdSFTextWidget<Field>::applyChanges()
{
    SoSField* field = getSField();
    if (!field)
        return;
    m_lineEdit->setModified(false);
    EdFieldEdits::write(field, [&] {
        if (auto* own = getFieldAs<Field>())
            write(*own);
        else
            field->set(SpxText::toSbString(m_lineEdit->text()));
    });
}

// What was not changed is written as it is, with every byte that the line edit could not show.
template <class Field>
void EdSFTextWidget<Field>::write(Field& field) const
{
    if (m_lineEdit->isChanged())
        setText(field, m_lineEdit->text());
    else
        field.setValue(field.getValue());
}

template <class Field>
bool EdSFTextWidget<Field>::edited()
{
    return m_lineEdit->isModified();
}

template class EdSFTextWidget<SoSFString>;
template class EdSFTextWidget<SoSFName>;
template class EdSFTextWidget<SoSFFilePathString>;

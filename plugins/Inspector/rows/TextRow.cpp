// SPDX-License-Identifier: MIT
#include "rows/TextRow.h"

#include "rows/TextEdit.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFName.h>
#include <xsg/fields/SoSFString.h>

#include <QHBoxLayout>
#include <QToolTip>

namespace inspector
{

TextRow::TextRow(SoField* field)
    : Row(field)
{
}

void TextRow::build()
{
    m_line = new TextEdit([this] {
        m_line->setModified(false);
        changedHere();
    });
    m_line->setMinimumWidth(fontMetrics().averageCharWidth() * 6);
    editorLayout()->addWidget(m_line, 1);
    addInput(m_line);
    connect(m_line, &QLineEdit::editingFinished, this, &TextRow::apply);
}

bool TextRow::isPlain() const
{
    return field()->getTypeId().isDerivedFrom(SoSFString::getClassTypeId()) ||
           field()->getTypeId().isDerivedFrom(SoSFName::getClassTypeId());
}

QString TextRow::shownText() const
{
    if (const auto* string = dynamic_cast<const SoSFString*>(field()))
        return SpxText::toQString(string->getValue());
    if (const auto* name = dynamic_cast<const SoSFName*>(field()))
        return SpxText::toQString(name->getValue());
    return SpxText::ofField(*field());
}

bool TextRow::writeText(const QString& text)
{
    if (auto* string = dynamic_cast<SoSFString*>(field()))
        string->setValue(SpxText::toSbString(text));
    else if (auto* name = dynamic_cast<SoSFName*>(field()))
        name->setValue(SbName(text.toLatin1().constData()));
    else
        return field()->set(SpxText::toSbString(text));
    return true;
}

void TextRow::showValue()
{
    if (m_line->hasFocus() && m_line->isModified())
        return;
    QString text = isMixed() ? QString() : shownText();
    m_line->setPlaceholderText(isMixed() ? mixedWord() : QString());
    const bool hasLines = isPlain() && text.contains(QLatin1Char('\n'));
    text.replace(QLatin1Char('\n'), QChar(0x23CE));
    m_line->setReadOnly(hasLines);
    m_line->setToolTip(hasLines ? tr("Several lines: click the name and edit them in the Field Editor.")
                                : QString());
    if (m_line->text() != text)
        m_line->setText(text);
    m_line->setModified(false);
    if (!m_line->hasFocus())
        m_line->setCursorPosition(0);
}

bool TextRow::isBusy() const
{
    return m_line->hasFocus() && m_line->isModified();
}

void TextRow::finish()
{
    apply();
}

void TextRow::apply()
{
    if (!m_line->isModified() || !field())
        return;
    const QString text = m_line->text();
    m_line->setModified(false);
    bool isValue = true;
    edit([&] {
        const bool isWritten = writeText(text);
        isValue = isValue && isWritten;
        return isWritten;
    });
    if (!isValue && isVisible())
        QToolTip::showText(m_line->mapToGlobal(QPoint(0, m_line->height())),
                           tr("“%1” is no value for %2.").arg(text.left(40), fieldName()), m_line);
}

} // namespace inspector

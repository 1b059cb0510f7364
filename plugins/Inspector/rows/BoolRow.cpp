// SPDX-License-Identifier: MIT
#include "rows/BoolRow.h"

#include <xsg/fields/SoSFBool.h>

#include <QCheckBox>
#include <QHBoxLayout>

namespace inspector
{

BoolRow::BoolRow(SoField* field)
    : Row(field)
{
}

void BoolRow::build()
{
    m_box = new QCheckBox;
    editorLayout()->addWidget(m_box);
    editorLayout()->addStretch();
    addInput(m_box);
    connect(m_box, &QCheckBox::clicked, this,
            [this](bool on) { edit([&] { static_cast<SoSFBool*>(field())->setValue(on); }); });
}

void BoolRow::showValue()
{
    const bool on = static_cast<const SoSFBool*>(field())->getValue();
    m_box->setTristate(isMixed());
    m_box->setCheckState(isMixed() ? Qt::PartiallyChecked : on ? Qt::Checked : Qt::Unchecked);
    m_box->setText(isMixed() ? mixedWord() : on ? tr("on") : tr("off"));
}

} // namespace inspector

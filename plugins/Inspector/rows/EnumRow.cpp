// SPDX-License-Identifier: MIT
#include "rows/EnumRow.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFEnum.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QHBoxLayout>

namespace inspector
{

EnumRow::EnumRow(SoField* field)
    : Row(field)
{
}

void EnumRow::build()
{
    m_box = new QComboBox;
    m_box->setFocusPolicy(Qt::StrongFocus);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setMinimumContentsLength(4);
    editorLayout()->addWidget(m_box, 1);
    addInput(m_box);
    connect(m_box, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const int value = m_box->itemData(index).toInt();
        const auto edited = [this] { return static_cast<SoSFEnum*>(field()); };
        if (edited() && (isMixed() || edited()->getValue() != value))
            edit([&] { edited()->setValue(value); });
    });
}

void EnumRow::showValue()
{
    const auto& edited = static_cast<const SoSFEnum&>(*field());
    const SoEnumTable& table = edited.getTable();
    m_box->clear();
    for (std::size_t i = 0; i < table.names.size(); ++i)
        m_box->addItem(SpxText::toQString(table.names[i]), table.values[i]);
    int index = table.indexOf(edited.getValue());
    if (index < 0) {
        m_box->addItem(tr("%1 (no name)").arg(edited.getValue()), edited.getValue());
        index = m_box->count() - 1;
    }
    m_box->setPlaceholderText(isMixed() ? mixedWord() : QString());
    m_box->setCurrentIndex(isMixed() ? -1 : index);
}

bool EnumRow::isBusy() const
{
    return m_box->view()->isVisible();
}

} // namespace inspector

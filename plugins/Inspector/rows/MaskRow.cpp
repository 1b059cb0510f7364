// SPDX-License-Identifier: MIT
#include "rows/MaskRow.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFBitMask.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include <optional>

namespace inspector
{

MaskRow::MaskRow(SoField* field)
    : Row(field)
{
}

void MaskRow::build()
{
    auto* grid = new QGridLayout(editor());
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    const SoEnumTable& table = static_cast<const SoSFBitMask*>(field())->getTable();
    for (std::size_t i = 0; i < table.names.size(); ++i) {
        const QString name = SpxText::toQString(table.names[i]);
        const int bits = table.values[i];
        auto* box = new QCheckBox(name);
        connect(box, &QCheckBox::clicked, this, [=](bool on) { setBits(bits, on); });
        grid->addWidget(box, int(i), 0);
        m_boxes += box;
        addInput(box, name);
    }
    m_others = new QLabel;
    grid->addWidget(m_others, 0, 1);
    grid->setColumnStretch(1, 1);
}

void MaskRow::setBits(int bits, bool on)
{
    edit([&] {
        auto* edited = static_cast<SoSFBitMask*>(field());
        const int before = edited->getValue();
        const int after = bits == 0 ? 0 : on ? before | bits : before & ~bits;
        if (after != before)
            edited->setValue(after);
        return after != before;
    });
}

// Of all nodes, whether these bits are all set, none, or some.
Qt::CheckState MaskRow::stateOf(int bits) const
{
    std::optional<Qt::CheckState> state;
    for (const SoField* each : fields()) {
        const int value = static_cast<const SoSFBitMask*>(each)->getValue();
        const int set = value & bits;
        const Qt::CheckState here = bits == 0     ? (value == 0 ? Qt::Checked : Qt::Unchecked)
                                    : set == bits ? Qt::Checked
                                    : set != 0    ? Qt::PartiallyChecked
                                                  : Qt::Unchecked;
        state = !state || *state == here ? here : Qt::PartiallyChecked;
    }
    return state.value_or(Qt::Unchecked);
}

void MaskRow::showValue()
{
    const auto& edited = static_cast<const SoSFBitMask&>(*field());
    const SoEnumTable& table = edited.getTable();
    const int value = edited.getValue();
    int known = 0;
    for (int i = 0; i < m_boxes.size() && i < int(table.values.size()); ++i) {
        const int bits = table.values[std::size_t(i)];
        known |= bits;
        m_boxes[i]->setTristate(stateOf(bits) == Qt::PartiallyChecked);
        m_boxes[i]->setCheckState(stateOf(bits));
    }
    const int others = value & ~known;
    m_others->setText(others == 0 ? QString() : QStringLiteral("+ 0x") + QString::number(uint(others), 16));
    m_others->setToolTip(others == 0 ? QString() : tr("Bits that have no name; they stay as they are."));
}

} // namespace inspector

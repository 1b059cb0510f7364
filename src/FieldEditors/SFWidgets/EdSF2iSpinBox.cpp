#include "EdSF2iSpinBox.h"

#include "EdFieldEdits.h"
#include "EdWheelGuard.h"

#include <QFrame>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

namespace
{

constexpr EdColumnLook Look{"SF2BoxLayout",   "SF2BoxVSpacing", "SF4flabel", "SF2Box",
                            "SF2BoxHSpacing", "SF2BoxHMargin",  true};

} // namespace

EdSF2iSpinBox::EdSF2iSpinBox(const char* name, int limits)
    : EdSFColumnsWidget(name, Look, {QStringLiteral("x"), QStringLiteral("y")})
    , m_limits(limits)
{
}

void EdSF2iSpinBox::load()
{
    EdSFColumnsWidget::load();
    setLimits(m_limits);
}

QWidget* EdSF2iSpinBox::buildInput()
{
    auto* box = new QSpinBox(editionFrame());
    box->setLocale(QLocale::c());
    EdWheelGuard::install(box);
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &EdSF2iSpinBox::setCommandValue);
    m_boxes.append(box);
    return box;
}

void EdSF2iSpinBox::setLimits(int kind)
{
    if (kind < 0 || kind > 2)
        return;
    using Short = std::numeric_limits<short>;
    using Int = std::numeric_limits<int>;
    for (QSpinBox* box : qAsConst(m_boxes)) {
        const QSignalBlocker quiet(box);
        box->setRange(kind == 0 ? int(Short::min()) : Int::min(), kind == 0 ? int(Short::max()) : Int::max());
    }
}

void EdSF2iSpinBox::refresh()
{
    Pair numbers;
    if (!read(numbers))
        return;
    for (int i = 0; i < m_boxes.size(); ++i) {
        const QSignalBlocker quiet(m_boxes[i]);
        if (m_boxes[i]->value() != numbers[std::size_t(i)])
            m_boxes[i]->setValue(numbers[std::size_t(i)]);
    }
    EdSFColumnsWidget::refresh();
}

void EdSF2iSpinBox::applyChanges()
{
    Pair numbers;
    if (!read(numbers))
        return;
    numbers = {m_boxes[0]->value(), m_boxes[1]->value()};
    for (const QSpinBox* box : qAsConst(m_boxes))
        box->findChild<QLineEdit*>()->setModified(false); // what was typed is applied
    EdFieldEdits::write(getSField(), [&] { write(numbers); });
}

// SPDX-License-Identifier: MIT
#include "EdSF2iSpinBox.h"

#include "EdFieldEdits.h"
#include "EdWheelFocusFilter.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

namespace
{

constexpr EdColumnLook Look{"SF2BoxLayout",   "SF2BoxVSpacing", "SF4flabel", "SF2Box",
                            "SF2BoxHSpacing", "SF2BoxHMargin",  true};

// Escape takes back what is no number yet, as in every other line.
class SpinBox : public QSpinBox
{
public:
    using QSpinBox::QSpinBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape && text() != textFromValue(value()))
            setValue(value());
        else
            QSpinBox::keyPressEvent(event);
    }
};

} // namespace

EdSF2iSpinBox::EdSF2iSpinBox(const char* name, int limits)
    : EdSFColumnsWidget(name, Look, {QStringLiteral("x"), QStringLiteral("y")})
    , m_limits(limits)
{
}

void EdSF2iSpinBox::load()
{
    m_boxes.clear();
    EdSFColumnsWidget::load();
    setLimits(m_limits);
}

QWidget* EdSF2iSpinBox::buildInput()
{
    auto* box = new SpinBox(editionFrame());
    box->setLocale(QLocale::c());
    EdWheelFocusFilter::install(box);
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
    m_shown = numbers;
    EdSFColumnsWidget::refresh();
}

// Every number is applied as it is typed: only text that is none yet waits.
void EdSF2iSpinBox::dropTyping()
{
    for (QSpinBox* box : qAsConst(m_boxes))
        box->setValue(box->value());
}

void EdSF2iSpinBox::applyChanges()
{
    Pair numbers;
    if (!read(numbers))
        return;
    const Pair before = numbers;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        QSpinBox* box = m_boxes[int(i)];
        if (box->value() != m_shown[i])
            numbers[i] = box->value();
        m_shown[i] = box->value();
        box->findChild<QLineEdit*>()->setModified(false); // what was typed is applied
    }
    // Enter repeats the number that stands there already.
    if (numbers != before)
        EdFieldEdits::write(getSField(), [&] { write(numbers); });
}

// SPDX-License-Identifier: MIT
#include "rows/RotationRow.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFRotation.h>

#include <QComboBox>
#include <QGridLayout>

namespace inspector
{

namespace
{

constexpr double Degree = 3.141592653589793 / 180;

} // namespace

RotationRow::RotationRow(SoField* field)
    : NumberInputsRow(field)
    , m_form(PanelSettings::rotationForm())
    , m_showsDegrees(PanelSettings::showsDegrees())
{
}

void RotationRow::build()
{
    m_forms = new QComboBox;
    m_forms->setObjectName(QStringLiteral("form"));
    m_forms->addItems({tr("axis, angle"), tr("Euler"), tr("quaternion")});
    m_forms->setCurrentIndex(int(m_form));
    m_forms->setFocusPolicy(Qt::StrongFocus);
    m_forms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_forms->setMinimumContentsLength(2);
    connect(m_forms, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { setForm(RotationForm(index)); });
    m_grid = new QGridLayout(editor());
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(3);
    addInput(m_forms, tr("form"));
    for (int i = 0; i < 4; ++i)
        addNumber({}, {});
    placeNumbers();
}

// The fourth number stands beside the choice of the form, the rest below.
void RotationRow::placeNumbers()
{
    const QString letters[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"),
                               QStringLiteral("w")};
    m_grid->addWidget(m_forms, 0, 0, 1, m_form == RotationForm::Euler ? 12 : 6);
    for (int i = 0; i < 4; ++i) {
        NumberEdit* number = numbers()[i];
        const bool isTheAngle = m_form == RotationForm::AxisAngle && i == 3;
        NumberFormat format;
        format.prefix = isTheAngle ? QStringLiteral("\u2220") : letters[i];
        if (isAngle(i)) {
            format.quantity = SpxQuantity::Angle;
            format.unit = m_showsDegrees ? Degree : 1;
        }
        number->setFormat(format);
        number->setAccessibleName(fieldName() + QLatin1Char(' ') + (isTheAngle ? tr("angle") : letters[i]));
        number->setVisible(i < 3 || m_form != RotationForm::Euler);
        if (i == 3)
            m_grid->addWidget(number, 0, 6, 1, 6);
        else
            m_grid->addWidget(number, 1, i * 4, 1, 4);
    }
    setInputOrder({m_forms, numbers()[3], numbers()[0], numbers()[1], numbers()[2]});
    for (int column = 0; column < 12; ++column)
        m_grid->setColumnStretch(column, 1);
}

void RotationRow::setForm(RotationForm form)
{
    if (form == m_form || !field())
        return;
    finish();
    m_form = form;
    m_hasParts = false;
    PanelSettings::setRotationForm(form);
    placeNumbers();
    showValue();
}

void RotationRow::updateParts()
{
    if (m_hasParts && rotation() == m_made)
        return;
    m_parts = partsOf(rotation(), m_form);
    m_made = rotation();
    m_hasParts = true;
}

void RotationRow::showValue()
{
    updateParts();
    NumberInputsRow::showValue();
}

const SbRotation& RotationRow::rotation() const
{
    return static_cast<const SoSFRotation*>(field())->getValue();
}

bool RotationRow::isAngle(int which) const
{
    return m_form == RotationForm::Euler || (m_form == RotationForm::AxisAngle && which == 3);
}

double RotationRow::shownNumber(int which) const
{
    const double part = m_parts[std::size_t(which)];
    return isAngle(which) && m_showsDegrees ? part / Degree : part;
}

QString RotationRow::shownText(int which) const
{
    return isAngle(which) && m_showsDegrees ? degreesText(shownNumber(which))
                                            : floatText(float(shownNumber(which)));
}

void RotationRow::writeNumber(int which, double number)
{
    m_parts[std::size_t(which)] = isAngle(which) && m_showsDegrees ? number * Degree : number;
    m_made = rotationOf(m_parts, m_form);
    static_cast<SoSFRotation*>(field())->setValue(m_made);
}

} // namespace inspector

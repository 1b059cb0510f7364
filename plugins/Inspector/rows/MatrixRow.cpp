// SPDX-License-Identifier: MIT
#include "rows/MatrixRow.h"

#include "fields/NumberAccess.h"

#include <scopix/editing/SpxText.h>
#include <xsg/fields/SoSFMatrix.h>

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace inspector
{

namespace
{

using Part = MatrixParts::Part;
using Shape = MatrixParts::Shape;

constexpr double Degree = 3.141592653589793 / 180;
constexpr int InGrid = 16; // the inputs for the parts follow those of the grid
constexpr int Space = 3;

Part partOf(int which)
{
    return Part((which - InGrid) / 3);
}

int axisOf(int which)
{
    return (which - InGrid) % 3;
}

QGridLayout* makeLayout(QWidget* widget)
{
    auto* layout = new QGridLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    return layout;
}

} // namespace

MatrixRow::MatrixRow(SoField* field)
    : NumberInputsRow(field)
    , m_form(PanelSettings::matrixForm())
    , m_showsDegrees(PanelSettings::showsDegrees())
{
}

void MatrixRow::build()
{
    auto* layout = new QVBoxLayout(editor());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Space);
    layout->addWidget(makeForms());
    layout->addWidget(makeGrid());
    layout->addWidget(makeParts());
    layout->addStretch();
}

QWidget* MatrixRow::makeForms()
{
    auto* line = new QWidget;
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    m_forms = new QComboBox;
    m_forms->setObjectName(QStringLiteral("form"));
    m_forms->addItems({tr("grid"), tr("move, turn, scale")});
    m_forms->setCurrentIndex(int(m_form));
    m_forms->setFocusPolicy(Qt::StrongFocus);
    m_forms->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_forms->setMinimumContentsLength(2);
    connect(m_forms, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { setForm(MatrixForm(index)); });
    addInput(m_forms, tr("form"));
    m_note = new QLabel;
    m_note->setObjectName(QStringLiteral("note"));
    layout->addWidget(m_forms, 1);
    layout->addWidget(m_note);
    return line;
}

QWidget* MatrixRow::makeGrid()
{
    m_grid = new QWidget;
    QGridLayout* layout = makeLayout(m_grid);
    for (int i = 0; i < InGrid; ++i) {
        const QString place = tr("row %1, column %2").arg(i / 4 + 1).arg(i % 4 + 1);
        layout->addWidget(addNumber(formatOf(*field()), place), i / 4, i % 4);
    }
    return m_grid;
}

QWidget* MatrixRow::makeParts()
{
    m_partInputs = new QWidget;
    QGridLayout* layout = makeLayout(m_partInputs);
    const QString names[] = {tr("move"), tr("turn"), tr("scale")};
    const QString axes[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")};
    for (int part = 0; part < 3; ++part) {
        layout->addWidget(new QLabel(names[part]), part, 0);
        for (int axis = 0; axis < 3; ++axis) {
            NumberFormat format;
            format.prefix = axes[axis];
            if (part == Part::Rotation) {
                format.quantity = SpxQuantity::Angle;
                format.unit = m_showsDegrees ? Degree : 1;
            } else if (part == Part::Translation) {
                format.quantity = SpxQuantity::Length;
            }
            layout->addWidget(addNumber(format, names[part] + QLatin1Char(' ') + axes[axis]), part, axis + 1);
            layout->setColumnStretch(axis + 1, 1);
        }
    }
    return m_partInputs;
}

void MatrixRow::setForm(MatrixForm form)
{
    if (form == m_form || !field())
        return;
    finish();
    m_form = form;
    m_hasParts = false;
    PanelSettings::setMatrixForm(form);
    showValue();
}

void MatrixRow::showValue()
{
    updateParts();
    showForm();
    NumberInputsRow::showValue();
}

void MatrixRow::updateParts()
{
    if (m_hasParts && matrix() == m_made)
        return;
    m_made = matrix();
    m_hasParts = true;
    m_shape = MatrixParts::shapeOf(m_made);
    m_parts = m_shape == Shape::Plain ? MatrixParts::of(m_made) : MatrixParts();
}

// What the user is at stays, even where a number makes the matrix plain, or no longer so.
void MatrixRow::showForm()
{
    if (isBusy())
        return;
    const bool showsParts = m_form == MatrixForm::Parts && m_shape == Shape::Plain;
    m_grid->setVisible(!showsParts);
    m_partInputs->setVisible(showsParts);
    const bool isRefused = m_form == MatrixForm::Parts && !showsParts;
    const QString words[] = {{}, tr("sheared"), tr("flat"), tr("perspective")};
    const QString reasons[] = {{},
                               tr("It shears: its axes are not at right angles"),
                               tr("It squeezes space flat, or has numbers that are not finite"),
                               tr("Its last column is not 0 0 0 1")};
    m_note->setVisible(isRefused);
    m_note->setText(words[int(m_shape)]);
    m_note->setToolTip(
        isRefused ? tr("%1, so it cannot be shown as moving, turning and scaling.").arg(reasons[int(m_shape)])
                  : QString());
    m_forms->setAccessibleDescription(isRefused ? m_note->toolTip() : accessibleDescription());
}

const SbMatrix& MatrixRow::matrix() const
{
    return static_cast<const SoSFMatrix*>(field())->getValue();
}

bool MatrixRow::isAngle(int which) const
{
    return which >= InGrid && partOf(which) == Part::Rotation;
}

double MatrixRow::shownNumber(int which) const
{
    if (which < InGrid)
        return NumberAccess::of(*field())->get(*field(), which);
    const double number = m_parts.numbers[partOf(which)][std::size_t(axisOf(which))];
    return isAngle(which) && m_showsDegrees ? number / Degree : number;
}

QString MatrixRow::shownText(int which) const
{
    if (isAngle(which) && m_showsDegrees)
        return degreesText(shownNumber(which));
    return floatText(float(shownNumber(which)));
}

void MatrixRow::writeNumber(int which, double number)
{
    if (which < InGrid)
        return NumberAccess::of(*field())->set(*field(), which, number);
    SbMatrix changed = matrix();
    m_parts.change(changed, partOf(which), axisOf(which),
                   isAngle(which) && m_showsDegrees ? number * Degree : number);
    m_made = changed;
    static_cast<SoSFMatrix*>(field())->setValue(changed);
}

} // namespace inspector

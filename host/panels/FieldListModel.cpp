// SPDX-License-Identifier: MIT
#include "panels/FieldListModel.h"

#include "panels/FieldStateIcons.h"
#include "structure/MirroredNode.h"
#include "text/NodeText.h"
#include "text/ValueText.h"
#include "theme/SvgIcon.h"

#include <xsg/core/SoField.h>
#include <xsg/sensors/SoFieldSensor.h>

#include <QWidget>

namespace scopix
{

namespace
{

constexpr int ToolTipLength = 1000;

} // namespace

struct FieldListModel::Row {
    Row(FieldListModel* itsModel, int itsNumber, SoField* itsField)
        : model(itsModel)
        , number(itsNumber)
        , field(itsField)
        , sensor(fieldChanged, this)
    {
        sensor.attach(field);
    }

    FieldListModel* model;
    int number;
    SoField* field;
    SoFieldSensor sensor;
};

FieldListModel::FieldListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    SoFieldContainer::addDyingCallback(containerDying, this);
}

FieldListModel::~FieldListModel()
{
    SoFieldContainer::removeDyingCallback(containerDying, this);
}

void FieldListModel::containerDying(void* self, SoFieldContainer* dying)
{
    auto* model = static_cast<FieldListModel*>(self);
    if (model->m_container == dying)
        model->setContainer(nullptr);
}

void FieldListModel::setContainer(SoFieldContainer* container)
{
    if (container == m_container)
        return;
    beginResetModel();
    m_container = container;
    m_rows.clear();
    const int count = container ? container->getFieldData()->getNumFields() : 0;
    for (int i = 0; i < count; ++i)
        m_rows.push_back(std::make_unique<Row>(this, i, container->getFieldData()->getField(container, i)));
    endResetModel();
}

SoField* FieldListModel::fieldAt(const QModelIndex& index) const
{
    return index.isValid() ? m_rows[static_cast<std::size_t>(index.row())]->field : nullptr;
}

QModelIndex FieldListModel::indexOf(const SoField* field) const
{
    const int row = m_container && field ? m_container->getFieldData()->getIndex(m_container, field) : -1;
    return row < 0 ? QModelIndex() : index(row, NameColumn);
}

int FieldListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FieldListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FieldListModel::text(const SoField& field, int column) const
{
    switch (column) {
    case NameColumn:
        return toQString(field.getName());
    case TypeColumn:
        return toQString(field.getTypeId().getName());
    default:
        return valueText(field);
    }
}

QString FieldListModel::toolTip(const SoField& field) const
{
    QStringList parts{tr("%1 (%2)").arg(toQString(field.getName()), toQString(field.getTypeId().getName()))};
    if (field.isDefault())
        parts += tr("default");
    if (field.isIgnored())
        parts += tr("ignored");
    if (field.isConnected())
        parts += tr("follows another field");
    const QString remark = remarkOn(field);
    if (!remark.isEmpty())
        parts += remark;
    return parts.join(QStringLiteral(", ")) + QLatin1Char('\n') + valueText(field, ToolTipLength);
}

bool FieldListModel::isGrey() const
{
    const MirroredNode* mirrored = MirroredNode::of(m_container);
    return mirrored && !mirrored->refusal().isEmpty();
}

QString FieldListModel::remarkOn(const SoField& field)
{
    const MirroredNode* mirrored = MirroredNode::of(field.getContainer());
    return mirrored ? mirrored->remarkOn(field) : QString();
}

void FieldListModel::lookAgain()
{
    if (!m_rows.empty())
        emit dataChanged(index(0, NameColumn), index(rowCount() - 1, ValueColumn));
}

// A null icon would take up the room of one.
QVariant FieldListModel::icon(const SoField& field, int column) const
{
    if (column == NameColumn)
        return remarkOn(field).isEmpty() ? fieldStateIcon(field, surface())
                                         : svgIcon(QStringLiteral("field-refused"), surface());
    const QIcon swatch = column == ValueColumn ? valueSwatch(field, surface()) : QIcon();
    return swatch.isNull() ? QVariant() : swatch;
}

// The view, whose palette colours icons and text.
const QWidget* FieldListModel::surface() const
{
    return qobject_cast<const QWidget*>(QObject::parent());
}

QVariant FieldListModel::data(const QModelIndex& index, int role) const
{
    const SoField* field = fieldAt(index);
    if (!field)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(*field, index.column());
    case Qt::ToolTipRole:
        return toolTip(*field);
    case Qt::DecorationRole:
        return icon(*field, index.column());
    case Qt::ForegroundRole:
        if (field->isIgnored() || isGrey() || index.column() == TypeColumn)
            return paletteOf(surface()).placeholderText();
        return {};
    case DefaultRole:
        return field->isDefault();
    case IgnoredRole:
        return field->isIgnored();
    case ConnectedRole:
        return field->isConnected();
    default:
        return {};
    }
}

QVariant FieldListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Field");
    case TypeColumn:
        return tr("Type");
    default:
        return tr("Value");
    }
}

void FieldListModel::fieldChanged(void* data, SoSensor* /*sensor*/)
{
    const Row* row = static_cast<Row*>(data);
    FieldListModel* model = row->model;
    emit model->dataChanged(model->index(row->number, NameColumn), model->index(row->number, ValueColumn));
}

} // namespace scopix

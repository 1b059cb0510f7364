// SPDX-License-Identifier: MIT
#pragma once

#include "EdFieldEdits.h"
#include "EdMFieldTable.h"
#include "EdMFieldWidget.h"

#include <xsg/core/SoMField.h>

namespace componentText
{

/// 'g' with 6 digits for reals, decimal for integers; a text that does not convert gives 0.
QString toText(float value);
QString toText(int value);
void fromText(const QString& text, float& value);
void fromText(const QString& text, int& value);
void fromText(const QString& text, short& value);

} // namespace componentText

/// Base of the lists whose elements have several numbers: one element per row, one number per column. What
/// makes a concrete editor is its Traits:
///
///     struct Vec2fTraits {
///         using Field = SoMFVec2f;
///         using Component = float;
///         static constexpr const char* Name = "MFVec2f";                       // extension name and caption
///         static constexpr EdMFieldTable::MFTableTypeCell Cell = EdMFieldTable::CELL_FLOAT;
///         static QStringList captions();                                        // one per column
///         static Component get(const Field::Value& element, int column);
///         static Field::Value with(const Field::Value& element, int column, Component value);
///     };
template <class Traits>
class EdMFComponentsWidget : public EdMFieldWidget
{
public:
    using Field = typename Traits::Field;
    using Component = typename Traits::Component;
    using Element = typename Field::Value;

    void load() override
    {
        setFieldName(QString::fromLatin1(Traits::Name));
        EdMFieldWidget::load();
        initClass();
    }
    bool checkField(SoField* field) override { return field && field->isOfType(Field::getClassTypeId()); }
    int getTextFlags() override { return Qt::AlignLeft; }

    QString getFieldValue(int row, int column) const override
    {
        if (!hasComponent(row, column))
            return {};
        return componentText::toText(getSingleFieldValue(row, column));
    }
    void set1Value(int row, int column, QString text) override
    {
        Component value{};
        componentText::fromText(text, value);
        setSingleFieldValue(value, row, column);
    }
    void swapRows(int row1, int row2) override { swapElements(values(), row1, row2); }

    virtual void setSingleFieldValue(Component value, int row, int column)
    {
        if (!hasComponent(row, column))
            return;
        EdFieldEdits::write1(
            values(), row, [&] { values()->set1Value(row, Traits::with((*values())[row], column, value)); });
    }
    Component getSingleFieldValue(int row, int column) const { return Traits::get((*values())[row], column); }

protected:
    explicit EdMFComponentsWidget(const char* name, int tableKind = 0)
        : EdMFieldWidget(tableKind, name)
    {
        setHandledType(Field::getClassTypeId());
        setName(Traits::Name);
        if (!name)
            setObjectName(QStringLiteral("Ed%1Widget").arg(QLatin1String(Traits::Name)));
    }
    virtual void initClass()
    {
        const QStringList captions = Traits::captions();
        initColumns(captions, captions.size());
        table()->setCellType(Traits::Cell);
    }
    Field* values() const { return static_cast<Field*>(editedField()); }

private:
    bool hasComponent(int row, int column) const
    {
        return column >= 0 && column < Traits::captions().size() && hasRow(row);
    }
};

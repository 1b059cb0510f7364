// SPDX-License-Identifier: MIT
#pragma once

#include "EdFieldRange.h"
#include "EdMFLineWidget.h"
#include "EdMFieldTable.h"

#include <xsg/core/SoMField.h>

/// The two lists of reals: their sliders take the range that the field's node gives. Traits name the field
/// class, the caption, the cell type and where the range's ends are.
template <class Traits>
class EdMFRealWidget : public EdMFLineWidget
{
public:
    void load() override
    {
        setFieldName(QString::fromLatin1(Traits::Name));
        EdMFLineWidget::load();
    }
    /// Runs for every field that is set, so the range follows the node of the current one.
    bool checkField(SoField* field) override
    {
        if (!field || !field->isOfType(Traits::Field::getClassTypeId()))
            return false;
        m_range = rangeOfField(*field, Traits::DefaultRange);
        initClass();
        return true;
    }

protected:
    explicit EdMFRealWidget(const char* name)
        : EdMFLineWidget(name)
    {
        setHandledType(Traits::Field::getClassTypeId());
        setName(Traits::Name);
        if (!name)
            setObjectName(QStringLiteral("Ed%1Widget").arg(QLatin1String(Traits::Name)));
    }
    void initClass()
    {
        initColumns({}, 1);
        table()->setCellType(Traits::Cell);
        table()->setDoubleEditorRange(Traits::minimum(m_range), Traits::maximum(m_range));
        table()->setBoundedValue(m_range.isBoundFixed());
    }
};

// SPDX-License-Identifier: MIT
#pragma once

#include "EdMFLineWidget.h"
#include "EdMFieldTable.h"

#include <xsg/core/SoMField.h>

/// The four lists of integers; Traits name the field class, the caption and the cell type.
template <class Traits>
class EdMFIntegerWidget : public EdMFLineWidget
{
public:
    void load() override
    {
        setFieldName(QString::fromLatin1(Traits::Name));
        EdMFLineWidget::load();
        table()->setCellType(Traits::Cell);
    }
    bool checkField(SoField* field) override
    {
        return field && field->isOfType(Traits::Field::getClassTypeId());
    }

protected:
    explicit EdMFIntegerWidget(const char* name)
        : EdMFLineWidget(name)
    {
        setHandledType(Traits::Field::getClassTypeId());
        setName(Traits::Name);
        if (!name)
            setObjectName(QStringLiteral("Ed%1Widget").arg(QLatin1String(Traits::Name)));
    }
};

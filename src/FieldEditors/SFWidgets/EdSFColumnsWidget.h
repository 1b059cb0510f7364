// SPDX-License-Identifier: MIT
#pragma once

#include "EdSFieldWidget.h"

#include <QStringList>

/// Object names, and keys of the layout metrics.
struct EdColumnLook {
    const char* layoutName;
    const char* columnSpacingKey;
    const char* labelName;
    const char* inputName;
    const char* spacingKey;
    const char* marginKey;
    bool hasColumnMargin;
};

/// What the editors of several numbers share: one column for each component, its caption above its input,
/// side by side.
class EdSFColumnsWidget : public EdSFieldWidget
{
    Q_OBJECT

public:
    void load() override;

protected:
    /// One caption for each component, in order.
    EdSFColumnsWidget(const char* name, const EdColumnLook& look, const QStringList& captions);

    virtual QWidget* buildInput() = 0;
    /// As many names as components.
    void setNameLabels(const QString* names);

private:
    void buildComponent(const QString& caption);

    const EdColumnLook& m_look;
    QStringList m_captions;
    QList<QLabel*> m_labels;
};

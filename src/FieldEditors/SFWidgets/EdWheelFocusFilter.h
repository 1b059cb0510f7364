// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from changing an input that has no focus, so that scrolling past an editor edits nothing.
class EdWheelFocusFilter : public QObject
{
    Q_OBJECT

public:
    /// The guard becomes a child of `input`, which then takes the focus by click and Tab only.
    static void install(QWidget* input);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

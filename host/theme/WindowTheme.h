// SPDX-License-Identifier: MIT
#pragma once

#include "theme/Theme.h"

#include <QFont>
#include <QObject>

class QStyle;

namespace scopix
{

/// Keeps the theme of one window and of all that belongs to it. Palette and font are inherited from parent to
/// child, to other windows only by those that ask for it, and a style not at all: so each widget is set up
/// when it is polished or comes to another parent. Owned by the window. GUI thread only.
class WindowTheme : public QObject
{
    Q_OBJECT

public:
    explicit WindowTheme(QWidget& window);
    void apply(Theme theme);
    /// In points; 0 is the system's.
    void setFontSize(int points);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool belongsToWindow(const QWidget& widget) const;
    void dressAll(QWidget& top);
    void dress(QWidget& widget);

    QWidget& m_window;
    QFont m_systemFont;
    QStyle* m_style; // null where the application has it too
};

} // namespace scopix

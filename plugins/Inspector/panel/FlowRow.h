// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class QToolButton;

namespace inspector
{

/// Small buttons one after the other, in as many lines as they need. Hidden while it has none. GUI thread
/// only.
class FlowRow : public QWidget
{
    Q_OBJECT

public:
    explicit FlowRow(QWidget* parent = nullptr);

    void clear();
    QToolButton* add(const QString& text, const QString& toolTip, std::function<void()> act);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QList<QToolButton*> m_buttons;
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class SoField;

namespace inspector
{

/// Says at a glance what is special about a field. GUI thread only.
class Mark : public QToolButton
{
    Q_OBJECT

public:
    enum class State { Default, Changed, Connected, Ignored, Animated, Conflict };

    explicit Mark(QWidget* parent);

    /// As large as the line of its row.
    QSize sizeHint() const override { return {fontMetrics().height(), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
    void setState(State state, const QString& words);
    State state() const { return m_state; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    State m_state = State::Default;
};

} // namespace inspector

// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

namespace inspector
{

class NumberEdit;

/// The name before an input, shortened to its width. A drag on it drags a number; a click is reported. GUI
/// thread only.
class Caption : public QWidget
{
    Q_OBJECT

public:
    Caption(const QString& text, QWidget* parent);

    void setDragged(NumberEdit* number);
    void setStrong(bool strong);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void end(bool keep);

    QString m_text;
    QPointer<NumberEdit> m_number;
    QPoint m_pressedAt;
    bool m_isPressed = false;
    bool m_drags = false;
};

} // namespace inspector

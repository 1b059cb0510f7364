// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

/// Answers every message box that opens while it lives, and keeps what the boxes said.
///
///     MessageBoxes boxes;                                // answers each with its default button
///     boxes.answer(QMessageBox::Cancel);                 // from now on with this one
///     ... what opens a box ...
///     EXPECT_EQ(boxes.take(), (QStringList{"title: text"}));
class MessageBoxes : public QObject
{
public:
    MessageBoxes() { qApp->installEventFilter(this); }
    ~MessageBoxes() override { qApp->removeEventFilter(this); }

    void answer(QMessageBox::StandardButton button) { m_button = button; }
    QStringList take()
    {
        QStringList said;
        said.swap(m_said);
        return said;
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(object);
        if (box && event->type() == QEvent::Show) {
            m_said.append(box->windowTitle() + QStringLiteral(": ") + box->text());
            QTimer::singleShot(0, box, [this, box] { close(*box); });
        }
        return QObject::eventFilter(object, event);
    }

private:
    void close(QMessageBox& box) const
    {
        QAbstractButton* button = m_button == QMessageBox::NoButton ? nullptr : box.button(m_button);
        if (!button)
            button = box.defaultButton() ? static_cast<QAbstractButton*>(box.defaultButton())
                                         : box.buttons().constFirst();
        button->click();
    }

    QStringList m_said;
    QMessageBox::StandardButton m_button = QMessageBox::NoButton;
};

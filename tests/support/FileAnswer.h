// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

/// Answers the file dialog that is about to open, as a user types a name and presses Enter, and keeps what
/// the dialog asked for. An empty name closes it. A question about writing over a file is answered with yes.
///
///     FileAnswer answer(folder.filePath("new.xml"));
///     ... what opens the dialog ...
///     EXPECT_EQ(answer.caption, "Save the profiles");
class FileAnswer : public QObject
{
public:
    explicit FileAnswer(QString name)
        : m_name(std::move(name))
    {
        startTimer(1);
    }

    QString caption; // empty: no dialog has come
    QStringList filters;
    QString directory;
    QObject* parent = nullptr;

protected:
    void timerEvent(QTimerEvent*) override
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            if (QAbstractButton* yes = box->button(QMessageBox::Yes))
                yes->click();
        } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
            answer(*dialog);
        }
    }

private:
    void answer(QFileDialog& dialog)
    {
        if (!caption.isEmpty())
            return;
        caption = dialog.windowTitle();
        filters = dialog.nameFilters();
        directory = dialog.directory().absolutePath();
        parent = dialog.parent();
        if (m_name.isEmpty()) {
            dialog.reject();
            return;
        }
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(m_name);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    }

    QString m_name;
};

// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QPushButton;

namespace scopix
{

/// A program to start, its arguments and the folder that it runs in.
struct LaunchOrder {
    QStringList command; // the program first
    QString folder;      // empty: ours
};

/// Asks for a program to launch. GUI thread only.
class LaunchDialog : public QDialog
{
    Q_OBJECT

public:
    /// Begins with what was launched last.
    LaunchDialog(const LaunchOrder& last, QWidget* parent);
    LaunchOrder getOrder() const;

private:
    void update();

    QLineEdit* m_program;
    QLineEdit* m_arguments;
    QLineEdit* m_folder;
    QPushButton* m_launch;
};

} // namespace scopix

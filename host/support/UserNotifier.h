// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QMessageBox;
class QWidget;

namespace scopix
{

class PostedErrors;

/// Shows the host's messages to the user: on standard error, in the status bar and, for errors in an attended
/// session, in a message box. In an unattended session every message box of the program, those of plug-ins
/// included, is closed at once and its text printed to standard error, and so is what the scene graph posts,
/// which only the console shows otherwise. Every message is printable(). GUI thread only.
class UserNotifier : public QObject
{
    Q_OBJECT

public:
    explicit UserNotifier(QObject* parent = nullptr);
    ~UserNotifier() override;

    /// True, as at first, when somebody is there to read and close a box.
    void setAttended(bool attended);
    bool isAttended() const { return m_attended; }
    /// In an unattended session, once whatever else handles the scene graph's errors has been set up; until
    /// `false`, which is due before that goes.
    void setPrintsPostedErrors(bool on);
    /// The window over which boxes open; not owned.
    void setWindow(QWidget* window) { m_window = window; }

    /// Something went wrong; one clear sentence.
    void error(const QString& sentence);
    /// Good to know; shown in the status bar only.
    void info(const QString& sentence);
    /// Worth a line in the console: `about`, such as the name of a file, was treated as the sentence says.
    static void note(const QString& about, const QString& sentence);
    int errorCount() const { return m_errorCount; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// For the status bar.
    void told(const QString& sentence);

private:
    void showInBox(const QString& sentence);
    static void print(const QString& sentence);

    QPointer<QWidget> m_window;
    QPointer<QMessageBox> m_box;
    int m_errorCount = 0;
    bool m_attended = true;
    std::unique_ptr<PostedErrors> m_postedErrors;
};

} // namespace scopix

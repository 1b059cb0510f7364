// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class QTextBrowser;
class QUrl;

namespace scopix
{

/// A window with a page of the documentation, which is Markdown in files beside the program: neither a
/// network nor another program is needed. GUI thread only.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// Shows the window with this page, as SpxGuide::showHelp() has it. False where there is no such page,
    /// and what was shown stays.
    bool open(const QString& page, const QString& section);

    /// The file of a page that is named "nodes" or by its full path; empty for none.
    static QString fileOf(const QString& page);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool load(const QString& file);
    void follow(const QUrl& link);
    void goTo(const QString& section);

    QTextBrowser* m_browser;
    QString m_file;
};

} // namespace scopix

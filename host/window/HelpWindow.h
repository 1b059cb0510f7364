// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextDocument>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QTextBrowser;
class QUrl;

namespace scopix
{

/// A window with a page of the documentation, which is Markdown in files beside the program: neither a
/// network nor another program is needed. It goes back and forth between the pages that were read, to the
/// page of contents, and finds words in the page. GUI thread only.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// The page that leads to all others.
    static QString contentsPage() { return QStringLiteral("contents"); }

    /// Shows the window with this page, as SpxGuide::showHelp() has it. False where there is no such page,
    /// and what was shown stays.
    bool open(const QString& page, const QString& section);

    /// The file of a page that is named "nodes" or by its full path; empty for none.
    static QString fileOf(const QString& page);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeBar(QHBoxLayout& bar);
    void makeFindLine(QHBoxLayout& bar);
    void showPage();
    void colorLinks();
    void go(const QString& file, const QString& section);
    void follow(const QUrl& link);
    void goTo(const QString& section);
    void find(QTextDocument::FindFlags direction);

    QTextBrowser* m_browser;
    QLineEdit* m_wanted = nullptr;
    QLabel* m_notFound = nullptr;
};

} // namespace scopix

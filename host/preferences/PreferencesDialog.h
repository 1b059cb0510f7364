// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/Setting.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QVBoxLayout;

namespace scopix
{

class SettingRow;

/// All that the user may set, in pages, with a line that finds it. What is changed takes hold at once. GUI
/// thread only.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    PreferencesDialog(const std::vector<Setting>& settings, QWidget* parent);

    /// A page that is no list of settings. `words`: what it is found by besides its title.
    void addPage(const QString& title, QWidget* page, const QString& words);
    /// Shows the page of the setting, with the focus on its input; an unknown one shows the first page.
    void showSetting(const QString& key);

    QLineEdit& getSearch() { return *m_search; }

signals:
    /// Something cannot be kept; one sentence.
    void failed(const QString& sentence);

private:
    struct Page {
        QString title;
        QString words;
        std::vector<SettingRow*> rows;
    };

    void addSettings(const std::vector<Setting>& settings);
    Page& pageOf(const QString& title);
    void search(const QString& text);
    void resetPage();
    void orderTabs();

    QLineEdit* m_search;
    QListWidget* m_titles;
    QStackedWidget* m_stack;
    QLabel* m_nothing;
    QDialogButtonBox* m_buttons = nullptr;
    QPushButton* m_reset = nullptr;
    std::vector<Page> m_pages;
};

} // namespace scopix

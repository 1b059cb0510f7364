// SPDX-License-Identifier: MIT
#pragma once

#include "profiles/HostProfile.h"

#include <QDialog>

#include <vector>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace scopix
{

class ProfileList;

/// Manages the profiles: makes one from the active one, renames, deletes, and chooses the extensions that
/// each controls. Nothing changes before OK. GUI thread only.
class ProfilesDialog : public QDialog
{
    Q_OBJECT

public:
    /// The list must outlive the dialog.
    explicit ProfilesDialog(ProfileList& profiles, QWidget* parent = nullptr);

    void accept() override;

private:
    void makeList();
    void markActive(QListWidgetItem& item);
    void makeTree();
    QTreeWidgetItem* makeGroup(const QString& title, bool editors);
    QLayout* makeButtons();
    QPushButton* makeButton(const QString& text, const char* name, void (ProfilesDialog::*act)());

    void addProfile();
    void renameProfile();
    void deleteProfile();
    void activateDefault();
    void nameEdited(QListWidgetItem* item);
    void showProfile(int row);
    void choiceEdited();
    void showGroup(QTreeWidgetItem& group, const ExtensionChoice& choice);
    static ExtensionChoice groupChoice(const QTreeWidgetItem& group, const ExtensionChoice& former);
    QString freeName() const;
    ProfileChoice* current();

    ProfileList& m_source;
    const std::vector<ProfileChoice> m_base; // as they were when the dialog opened
    std::vector<ProfileChoice> m_profiles;
    std::size_t m_active = 0;
    QListWidget* m_list;
    QTreeWidget* m_tree;
    QTreeWidgetItem* m_tools = nullptr;
    QTreeWidgetItem* m_editors = nullptr;
    QPushButton* m_renameButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QLabel* m_problem;
};

} // namespace scopix

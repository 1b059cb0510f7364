// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace scopix
{

/// Lists the running programs that can be attached to, each with a picture of what it shows, and follows
/// those that come and go. GUI thread only.
class AttachDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AttachDialog(QWidget* parent);
    ~AttachDialog() override;

    /// Empty where none is chosen.
    QString chosenSocket() const;

private:
    class Entry;
    void list();

    QListWidget* m_list;
    QLabel* m_none;
    QPushButton* m_attach;
    QTimer m_again;
    std::vector<std::unique_ptr<Entry>> m_entries;
};

} // namespace scopix

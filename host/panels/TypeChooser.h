// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/types/SoType.h>

#include <QDialog>

#include <vector>

class QLineEdit;
class QListWidget;

namespace scopix
{

/// Lets the user choose one of some node types from a list that typing narrows. GUI thread only.
class TypeChooser : public QDialog
{
    Q_OBJECT

public:
    /// All types of which nodes can be made; those of groups alone, where only they fit.
    static std::vector<SoType> typesToAdd();
    static std::vector<SoType> groupTypes();

    TypeChooser(const std::vector<SoType>& types, const QString& title, QWidget* parent);
    /// The bad type until the dialog has been accepted.
    SoType getChosen() const { return m_chosen; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void narrow(const QString& text);
    void choose();

    QLineEdit* m_line;
    QListWidget* m_list;
    std::vector<SoType> m_types; // in the order of the rows
    SoType m_chosen;
};

} // namespace scopix

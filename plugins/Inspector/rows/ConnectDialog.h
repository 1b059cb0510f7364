// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxFieldPointer.h>

#include <QDialog>

#include <vector>

class QDialogButtonBox;
class SoFieldContainer;
class QLineEdit;
class QListWidget;

namespace inspector
{

/// Asks which field another one shall follow: those of the scene that it can follow, found by name or type.
/// GUI thread only.
class ConnectDialog : public QDialog
{
    Q_OBJECT

public:
    ConnectDialog(const SoField& follower, QWidget* parent);

    /// Null while none is chosen.
    SoField* chosen() const;

private:
    struct Candidate {
        QString text;
        SpxFieldPointer field;
    };
    void findCandidates(const SoField& follower);
    void addFieldsOf(const SoFieldContainer& node, const SoField& follower);
    void fill(const QString& words);

    std::vector<Candidate> m_candidates;
    QLineEdit* m_filter;
    QListWidget* m_list;
    QDialogButtonBox* m_buttons;
};

} // namespace inspector

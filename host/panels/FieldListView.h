// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

class SoField;
class SoFieldContainer;

namespace scopix
{

class FieldListModel;

/// Shows the fields of the selected node and reports which one the user selects.
class FieldListView : public QTreeView
{
    Q_OBJECT

public:
    explicit FieldListView(QWidget* parent = nullptr);

    void setContainer(SoFieldContainer* container);
    /// As of the model.
    void lookAgain();
    FieldListModel& getModel() const { return *m_model; }

    /// Selects the field's row, showing its node first where it is another one. Emits nothing.
    void showField(const SoField* field);
    /// The whole value of the chosen field, to the clipboard.
    void copyValue() const;

signals:
    /// Null when the selection is cleared.
    void fieldSelected(SoField* field);

protected:
    /// Copying takes the whole value of the chosen field to the clipboard.
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void fitColumns();

    FieldListModel* m_model;
    bool m_quiet = false;
};

} // namespace scopix

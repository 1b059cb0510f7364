// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldContainer.h>

#include <QAbstractTableModel>

#include <memory>
#include <vector>

class QWidget;
class SoSensor;

namespace scopix
{

/// The fields of one node, a row each: name, type and value. A value becomes text only when a view asks for
/// it. Follows the fields once per turn of the sensor queue. GUI thread only.
class FieldListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, ValueColumn, ColumnCount };
    /// Bool each.
    enum Role { DefaultRole = Qt::UserRole, IgnoredRole, ConnectedRole };

    /// Where the parent is a widget, its palette colours icons and text.
    explicit FieldListModel(QObject* parent = nullptr);
    ~FieldListModel() override;

    /// Null shows nothing. Not kept alive: the model empties itself before the container is destroyed.
    void setContainer(SoFieldContainer* container);
    /// What is said about the fields, other than their values, may have changed.
    void lookAgain();
    SoFieldContainer* getContainer() const { return m_container; }

    /// Null for an invalid index.
    SoField* fieldAt(const QModelIndex& index) const;
    QModelIndex indexOf(const SoField* field) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row;

    static void fieldChanged(void* row, SoSensor* sensor);
    static void containerDying(void* self, SoFieldContainer* dying);
    QVariant text(const SoField& field, int column) const;
    QString toolTip(const SoField& field) const;
    static QString remarkOn(const SoField& field);
    bool isGrey() const;
    QVariant icon(const SoField& field, int column) const;
    const QWidget* surface() const;

    SoFieldContainer* m_container = nullptr;
    std::vector<std::unique_ptr<Row>> m_rows;
};

} // namespace scopix

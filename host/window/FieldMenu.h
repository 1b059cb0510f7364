// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class SoField;

namespace scopix
{

class FieldListView;
class HostServices;

/// The context menu of the list of fields, with the entries of plug-ins. Owned by the list. GUI thread only.
class FieldMenu : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    FieldMenu(FieldListView& list, HostServices& services);

private:
    void open(const QPoint& where);
    QString pathOf(const SoField& field) const;
    void reset(SoField& field);

    FieldListView& m_list;
    HostServices& m_services;
};

} // namespace scopix

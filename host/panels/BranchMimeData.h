// SPDX-License-Identifier: MIT
#pragma once

#include "structure/Places.h"

#include <QMimeData>

namespace scopix
{

/// Branches of a scene that are being dragged: the paths themselves for trees of this program, and their
/// text, made when somebody asks for it, for whoever else takes it. Keeps the nodes alive.
class BranchMimeData : public QMimeData
{
    Q_OBJECT

public:
    explicit BranchMimeData(const Paths& paths);
    ~BranchMimeData() override;

    const Paths& getPaths() const { return m_paths; }
    bool hasFormat(const QString& type) const override;
    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString& type, QVariant::Type preferred) const override;

private:
    Paths m_paths;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#pragma once

#include "structure/Places.h"

#include <QMimeData>

#include <functional>

namespace scopix
{

/// Branches of a scene that are being dragged: the paths themselves for trees of this program, and their
/// text, made when somebody asks for it, for whoever else takes it. Keeps the nodes alive; may outlive the
/// tree, as another program takes what it wants after the drop.
class BranchMimeData : public QMimeData
{
    Q_OBJECT

public:
    /// Empty where it is not to be had.
    using MakeText = std::function<QString(const Paths&)>;

    BranchMimeData(const Paths& paths, MakeText makeText);
    ~BranchMimeData() override;

    const Paths& getPaths() const { return m_paths; }
    bool hasFormat(const QString& type) const override;
    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString& type, QVariant::Type preferred) const override;

private:
    Paths m_paths;
    MakeText m_makeText;
};

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "panels/BranchMimeData.h"

#include "structure/BranchText.h"

namespace scopix
{

namespace
{

QString textType()
{
    return QStringLiteral("text/plain");
}

} // namespace

BranchMimeData::BranchMimeData(const Paths& paths)
    : m_paths(paths)
{
}

BranchMimeData::~BranchMimeData() = default;

bool BranchMimeData::hasFormat(const QString& type) const
{
    return type == textType();
}

QStringList BranchMimeData::formats() const
{
    return {textType()};
}

QVariant BranchMimeData::retrieveData(const QString& type, QVariant::Type /*preferred*/) const
{
    if (type != textType())
        return {};
    std::vector<SoNode*> nodes;
    for (const SoPath& path : m_paths)
        nodes.push_back(path.getTail());
    return QString::fromStdString(writeBranches(nodes));
}

} // namespace scopix

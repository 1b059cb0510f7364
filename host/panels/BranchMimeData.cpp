// SPDX-License-Identifier: MIT
#include "panels/BranchMimeData.h"

#include <utility>

namespace scopix
{

namespace
{

QString textType()
{
    return QStringLiteral("text/plain");
}

} // namespace

BranchMimeData::BranchMimeData(const Paths& paths, MakeText makeText)
    : m_paths(paths)
    , m_makeText(std::move(makeText))
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
    const QString text = type == textType() && m_makeText ? m_makeText(m_paths) : QString();
    return text.isEmpty() ? QVariant() : text;
}

} // namespace scopix

// SPDX-License-Identifier: MIT
#include "SoQuery.h"

#include "NodeMatcher.h"
#include "QueryParser.h"

SoQuery::SoQuery()
    : SoQuery(std::string_view())
{
}

SoQuery::SoQuery(std::string_view utf8)
{
    xsg::QueryParser parser(utf8);
    m_alternatives = std::make_shared<const std::vector<xsg::QueryTerms>>(parser.parse());
    m_error = parser.getError();
}

bool SoQuery::isEmpty() const
{
    return m_alternatives->empty();
}

bool SoQuery::matches(const SoNode& node) const
{
    return xsg::NodeMatcher(m_alternatives).matches(node);
}

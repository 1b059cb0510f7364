// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/query/QueryTerm.h>

#include <string_view>

namespace xsg
{

/// Takes the text of a query apart. One use.
class QueryParser
{
public:
    explicit QueryParser(std::string_view text)
        : m_rest(text)
    {
    }

    /// The alternatives; none where the text is empty or wrong.
    std::vector<QueryTerms> parse();
    /// A sentence, empty where nothing is wrong.
    const SbSentence& getError() const { return m_error; }

private:
    struct Word {
        std::string text;
        std::string quotedFrom; // as text, but only as far as the first quote
        bool quoted = false;
    };

    void skipSpaces();
    bool parseTerm(QueryTerms& terms);
    Word takeWord();
    bool takeQuoted(std::string& text);
    bool makeTerm(const Word& word, QueryTerm& term);
    bool takePlace(QueryTerm& term);
    bool makeComparison(const Word& word, std::size_t at, QueryTerm& term);
    bool fail(SbSentence sentence);

    std::string_view m_rest;
    SbSentence m_error;
};

} // namespace xsg

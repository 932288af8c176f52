// SPDX-License-Identifier: MIT
// Counts how deep the parser is while it lives.
#pragma once

#include "vortaq/sql/Parser.h"
#include "vortaq/sql/parse.h"

namespace vortaq::sql {

class Parser::Nesting {
public:
    explicit Nesting(Parser &parser)
        : m_parser(parser)
    {
        enter();
    }
    ~Nesting() { m_parser.m_depth -= m_levels; }
    Nesting(const Nesting &) = delete;
    Nesting &operator=(const Nesting &) = delete;

    /// One level more.
    void enter()
    {
        if (m_parser.m_depth == deepestNesting)
            m_parser.refuse(m_parser.m_token.at, "语句嵌套太深");
        ++m_parser.m_depth;
        ++m_levels;
    }

private:
    Parser &m_parser;
    int m_levels = 0;
};

} // namespace vortaq::sql

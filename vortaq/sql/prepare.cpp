// SPDX-License-Identifier: MIT
// Parses, checks what is due, binds, drops needless joins.
#include "vortaq/sql/prepare.h"

#include "vortaq/sql/bind.h"
#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/parse.h"
#include "vortaq/sql/semijoin.h"

namespace vortaq::sql {

Statement prepare(std::string_view text, const Catalog &catalog, Due due)
{
    const ast::Tree tree = parse(text);
    if (due == Due::Query && !tree.isQuery())
        failWhole(text, "此处只能执行查询语句");
    if (due == Due::Change && tree.isQuery())
        failWhole(text, "此处不能执行查询语句");
    Statement statement = bind(tree, text, catalog);
    reduceToSemiJoins(statement);
    return statement;
}

} // namespace vortaq::sql

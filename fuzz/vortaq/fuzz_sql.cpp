// SPDX-License-Identifier: MIT
// Any bytes as a statement: the lexer loses nothing, and the text is bound or refused with a message.
#include "tests/vortaq/sql/testcatalog.h"
#include "vortaq/SqlError.h"
#include "vortaq/sql/Lexer.h"
#include "vortaq/sql/prepare.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using namespace vortaq;
using namespace vortaq::sql;

namespace {

/// The texts of the tokens joined, up to the first refusal.
std::string joinedTokens(std::string_view text, bool &refused)
{
    Lexer lexer(text);
    std::string joined;
    try {
        for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next())
            joined += token.text;
    } catch (const SqlError &error) {
        refused = true;
    }
    return joined;
}

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void tryAs(std::string_view text, Due due)
{
    try {
        const Statement statement = prepare(text, test::hospitalCatalog(), due);
        require(statement.isQuery() == (due == Due::Query));
    } catch (const SqlError &error) {
        require(*error.what() != '\0');
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    bool refused = false;
    const std::string joined = joinedTokens(text, refused);
    require(refused ? text.starts_with(joined) : text == joined);
    tryAs(text, Due::Query);
    tryAs(text, Due::Change);
    return 0;
}

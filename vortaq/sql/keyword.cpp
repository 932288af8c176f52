// SPDX-License-Identifier: MIT
// The reserved words of T-SQL.
#include "vortaq/sql/Catalog.h"
#include "vortaq/sql/Token.h"

#include <algorithm>
#include <array>
#include <string>

namespace vortaq::sql {

namespace {

struct Entry {
    std::string_view word;
    Keyword keyword;
};

constexpr Keyword other = Keyword::Reserved;

// Sorted.
constexpr auto entries = std::to_array<Entry>({
    {"add", other},
    {"all", Keyword::All},
    {"alter", other},
    {"and", Keyword::And},
    {"any", other},
    {"as", Keyword::As},
    {"asc", Keyword::Asc},
    {"authorization", other},
    {"backup", other},
    {"begin", other},
    {"between", Keyword::Between},
    {"break", other},
    {"browse", other},
    {"bulk", other},
    {"by", Keyword::By},
    {"cascade", other},
    {"case", Keyword::Case},
    {"check", other},
    {"checkpoint", other},
    {"close", other},
    {"clustered", other},
    {"coalesce", other},
    {"collate", other},
    {"column", other},
    {"commit", other},
    {"compute", other},
    {"constraint", other},
    {"contains", other},
    {"containstable", other},
    {"continue", other},
    {"convert", Keyword::Convert},
    {"create", other},
    {"cross", other},
    {"current", other},
    {"current_date", other},
    {"current_time", other},
    {"current_timestamp", other},
    {"current_user", other},
    {"cursor", other},
    {"database", other},
    {"dbcc", other},
    {"deallocate", other},
    {"declare", other},
    {"default", other},
    {"delete", Keyword::Delete},
    {"deny", other},
    {"desc", Keyword::Desc},
    {"disk", other},
    {"distinct", other},
    {"distributed", other},
    {"double", other},
    {"drop", other},
    {"dump", other},
    {"else", Keyword::Else},
    {"end", Keyword::End},
    {"errlvl", other},
    {"escape", other},
    {"except", other},
    {"exec", other},
    {"execute", other},
    {"exists", other},
    {"exit", other},
    {"external", other},
    {"fetch", other},
    {"file", other},
    {"fillfactor", other},
    {"for", other},
    {"foreign", other},
    {"freetext", other},
    {"freetexttable", other},
    {"from", Keyword::From},
    {"full", other},
    {"function", other},
    {"goto", other},
    {"grant", other},
    {"group", Keyword::Group},
    {"having", other},
    {"holdlock", other},
    {"identity", other},
    {"identity_insert", other},
    {"identitycol", other},
    {"if", other},
    {"in", Keyword::In},
    {"index", other},
    {"inner", other},
    {"insert", Keyword::Insert},
    {"intersect", other},
    {"into", Keyword::Into},
    {"is", Keyword::Is},
    {"join", Keyword::Join},
    {"key", other},
    {"kill", other},
    {"left", Keyword::Left},
    {"like", Keyword::Like},
    {"lineno", other},
    {"load", other},
    {"merge", other},
    {"national", other},
    {"nocheck", other},
    {"nonclustered", other},
    {"not", Keyword::Not},
    {"null", Keyword::Null},
    {"nullif", other},
    {"of", other},
    {"off", other},
    {"offsets", other},
    {"on", Keyword::On},
    {"open", other},
    {"opendatasource", other},
    {"openquery", other},
    {"openrowset", other},
    {"openxml", other},
    {"option", other},
    {"or", Keyword::Or},
    {"order", Keyword::Order},
    {"outer", Keyword::Outer},
    {"over", other},
    {"percent", other},
    {"pivot", other},
    {"plan", other},
    {"precision", other},
    {"primary", other},
    {"print", other},
    {"proc", other},
    {"procedure", other},
    {"public", other},
    {"raiserror", other},
    {"read", other},
    {"readtext", other},
    {"reconfigure", other},
    {"references", other},
    {"replication", other},
    {"restore", other},
    {"restrict", other},
    {"return", other},
    {"revert", other},
    {"revoke", other},
    {"right", other},
    {"rollback", other},
    {"rowcount", other},
    {"rowguidcol", other},
    {"rule", other},
    {"save", other},
    {"schema", other},
    {"securityaudit", other},
    {"select", Keyword::Select},
    {"session_user", other},
    {"set", Keyword::Set},
    {"setuser", other},
    {"shutdown", other},
    {"some", other},
    {"statistics", other},
    {"system_user", other},
    {"table", other},
    {"tablesample", other},
    {"textsize", other},
    {"then", Keyword::Then},
    {"to", other},
    {"top", other},
    {"tran", other},
    {"transaction", other},
    {"trigger", other},
    {"truncate", other},
    {"tsequal", other},
    {"union", Keyword::Union},
    {"unique", other},
    {"unpivot", other},
    {"update", Keyword::Update},
    {"updatetext", other},
    {"use", other},
    {"user", other},
    {"values", Keyword::Values},
    {"varying", other},
    {"view", other},
    {"waitfor", other},
    {"when", Keyword::When},
    {"where", Keyword::Where},
    {"while", other},
    {"with", other},
    {"writetext", other},
});

constexpr bool byWord(const Entry &left, const Entry &right)
{
    return left.word < right.word;
}
static_assert(std::is_sorted(entries.begin(), entries.end(), byWord));

constexpr std::size_t longestWord =
    std::max_element(entries.begin(), entries.end(), [](const Entry &left, const Entry &right) {
        return left.word.size() < right.word.size();
    })->word.size();

} // namespace

Keyword keywordOf(std::string_view word)
{
    if (word.size() > longestWord)
        return Keyword::None;
    const std::string folded = foldName(word);
    const auto found = std::lower_bound(entries.begin(), entries.end(), Entry{folded, other}, byWord);
    return found != entries.end() && found->word == folded ? found->keyword : Keyword::None;
}

} // namespace vortaq::sql

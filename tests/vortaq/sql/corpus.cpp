// SPDX-License-Identifier: MIT
// Reads the corpus files.
#include "tests/vortaq/sql/corpus.h"

#include <fstream>
#include <stdexcept>

namespace vortaq::sql::test {

namespace {

constexpr std::string_view queryMark = "== query: ";
constexpr std::string_view changeMark = "== change: ";
constexpr std::string_view expectationMark = "=> ";

void appendLine(std::string &text, std::string_view line, bool first)
{
    if (!first)
        text += '\n';
    text += line;
}

} // namespace

std::vector<CorpusEntry> readCorpus(std::string_view fileName)
{
    std::ifstream file(std::string(TARNWELL_SQL_CORPUS) + "/" + std::string(fileName));
    if (!file)
        throw std::runtime_error("no corpus file " + std::string(fileName));
    std::vector<CorpusEntry> result;
    bool first = true;
    bool expecting = false;
    for (std::string line; std::getline(file, line);) {
        const std::string_view view = line;
        if (view.starts_with("== ")) {
            const bool query = view.starts_with(queryMark);
            if (!query && !view.starts_with(changeMark))
                throw std::runtime_error("bad mark in " + std::string(fileName) + ": " + line);
            const std::string_view mark = query ? queryMark : changeMark;
            result.push_back({query ? Due::Query : Due::Change, std::string(view.substr(mark.size())), {}, {}});
            first = true;
            expecting = false;
        } else if (view.starts_with(expectationMark) && !expecting && !result.empty()) {
            expecting = true;
            result.back().expected = view.substr(expectationMark.size());
        } else if (!result.empty()) {
            appendLine(expecting ? result.back().expected : result.back().statement, view, first);
            first = false;
        }
    }
    if (result.empty())
        throw std::runtime_error("empty corpus file " + std::string(fileName));
    return result;
}

} // namespace vortaq::sql::test

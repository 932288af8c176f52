// SPDX-License-Identifier: MIT
// A freshly made demo database and questions to it.
#pragma once

#include "vortaq/demo/demodata.h"

#include <QTemporaryDir>

#include <sqlite3.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vortaq::demo {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

struct CloseTestDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};

/// Opened for reading; NULL reads "NULL". Failures fail the test. The SQL function cents(amount) makes sums exact.
class TestDatabase {
public:
    explicit TestDatabase(const QString &file)
    {
        sqlite3 *database = nullptr;
        EXPECT_EQ(sqlite3_open_v2(file.toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
        m_database.reset(database);
        const auto cents = [](sqlite3_context *context, int, sqlite3_value **amount) {
            if (sqlite3_value_type(*amount) != SQLITE_NULL)
                sqlite3_result_int64(context, std::llround(sqlite3_value_double(*amount) * 100));
        };
        EXPECT_EQ(sqlite3_create_function(database, "cents", 1, SQLITE_UTF8, nullptr, cents, nullptr, nullptr),
                  SQLITE_OK);
    }

    Rows rows(const std::string &sql) const
    {
        Rows result;
        const auto collect = [](void *target, int columns, char **values, char **) {
            Row row;
            for (int i = 0; i < columns; ++i)
                row.emplace_back(values[i] == nullptr ? "NULL" : values[i]);
            static_cast<Rows *>(target)->push_back(std::move(row));
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(m_database.get(), sql.c_str(), collect, &result, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(m_database.get());
        return result;
    }

    std::string value(const std::string &sql) const
    {
        const Rows result = rows(sql);
        return result.size() == 1 && result.front().size() == 1 ? result.front().front() : "not one value";
    }

    std::vector<std::string> tables() const
    {
        std::vector<std::string> names;
        for (const Row &row : rows("select name from sqlite_master where type='table' order by name"))
            if (!row.front().starts_with("sqlite_"))
                names.push_back(row.front());
        return names;
    }

    /// All rows of all tables as text.
    std::string dump() const
    {
        std::string text;
        for (const std::string &table : tables()) {
            text += table + '\n';
            for (const Row &row : rows("select * from " + table)) {
                for (const std::string &cell : row)
                    text += cell + '|';
                text += '\n';
            }
        }
        return text;
    }

private:
    std::unique_ptr<sqlite3, CloseTestDatabase> m_database;
};

/// A demo database in a folder of its own.
class Demo {
public:
    explicit Demo(const DemoOptions &options)
    {
        createDemo(file(), options);
        m_database = std::make_unique<TestDatabase>(file());
    }

    [[nodiscard]] QString file() const { return m_folder.filePath(QStringLiteral("demo.db")); }
    const TestDatabase *operator->() const { return m_database.get(); }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<TestDatabase> m_database;
};

inline DemoOptions optionsOf(int records, int archived, std::uint64_t seed = 1, int detailLines = 0)
{
    return {records, archived, seed, QDate(2024, 3, 1), detailLines};
}

} // namespace vortaq::demo

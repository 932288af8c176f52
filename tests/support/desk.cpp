// SPDX-License-Identifier: MIT
#include "tests/support/desk.h"

#include "Common/executablefolder.h"
#include "automation/errordisplay.h"
#include "module/tarnwell_module.h"
#include "tests/support/smallhospital.h"
#include "toolkit/clock.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QFile>

#include <sqlite3.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// The screen is not looked at here; the conversation holds the texts.
class SilentMessages : public vortaq::UserMessages {
public:
    void alert(const QString &) override { }
    void hint(const QString &) override { }
};

Desk *sitting = nullptr;

} // namespace

class Desk::OtherProgram {
public:
    explicit OtherProgram(const QString &file)
    {
        if (sqlite3_open(file.toUtf8().constData(), &m_database) != SQLITE_OK)
            throw std::runtime_error("cannot open the database");
    }
    ~OtherProgram() { sqlite3_close(m_database); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

    QStringList rows(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        QStringList result;
        int state = SQLITE_ROW;
        while ((state = sqlite3_step(statement)) == SQLITE_ROW) {
            QStringList cells;
            for (int i = 0; i < sqlite3_column_count(statement); ++i) {
                const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, i));
                cells.append(text == nullptr ? QStringLiteral("null") : QString::fromUtf8(text));
            }
            result.append(cells.join(QLatin1Char('|')));
        }
        sqlite3_finalize(statement);
        if (state != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        return result;
    }

private:
    sqlite3 *m_database = nullptr;
};

Desk::Desk(const Options &options)
    : m_databaseFile(options.database.isEmpty() ? m_folder.filePath(QStringLiteral("hospital.db")) : options.database)
{
    if (options.database.isEmpty())
        createSmallHospital(m_databaseFile);
    m_otherProgram = std::make_unique<OtherProgram>(m_databaseFile);
    if (options.setupFile) {
        QFile setup(m_folder.filePath(QStringLiteral("setup.ini")));
        if (!setup.open(QIODevice::WriteOnly) || setup.write(options.setupFile->toUtf8()) < 0)
            throw std::runtime_error("cannot write setup.ini");
    }
    toolkit::setClock([today = options.today] { return today; });
    sitDown();

    vortaq::OpenOptions opening;
    opening.clock = [today = options.today] { return today.startOfDay().addSecs(9 * qint64{3600}); };
    m_engine = std::make_shared<FailingEngine>(vortaq::openSqlite(m_databaseFile, opening));
    const std::shared_ptr<vortaq::Session> session = vortaq::signIn(m_engine, options.user, options.parameters);
    m_objects = std::make_unique<vortaq::HostObjects>(session, std::make_shared<SilentMessages>());
}

Desk::~Desk()
{
    if (m_form != nullptr) {
        void *form = m_form;
        EXPECT_EQ(FreeModule(&form), TARNWELL_OK);
    }
    if (sitting == this)
        sitting = nullptr;
    automation::setErrorDisplay({});
    toolkit::setClock({});
    common::setExecutableFolder({});
}

void Desk::sitDown()
{
    if (sitting != nullptr)
        sitting->m_references = host::shared();
    host::shared() = m_references;
    sitting = this;
    common::setExecutableFolder(m_folder.path());
    toolkit::setMessageBoxes(&m_conversation);
    automation::setErrorDisplay([this](const QString &message) { m_errors.append(message); });
}

QWidget &Desk::open()
{
    void *form = nullptr;
    if (CreateModule(&form, 0, 0, 0, 0, 0, 0) != TARNWELL_OK)
        throw std::runtime_error("no form");
    m_form = static_cast<QWidget *>(form);
    m_form->resize(1366, 700);
    m_form->show();
    return *m_form;
}

void Desk::sqlite(const char *sql) const
{
    (void)m_otherProgram->rows(sql);
}

QStringList Desk::rows(const char *sql) const
{
    return m_otherProgram->rows(sql);
}

QStringList Desk::contents() const
{
    QStringList all;
    for (const char *sql : {"select * from o_CbZyBxDj order by 1,2,3,4", "select * from o_CbZyZdb order by 1,2",
                            "select * from o_CbZyBxDjZb order by 1,2,3,4,5", "select * from o_CbZyJsb order by 1,2,3,4",
                            "select * from o_CbZyJsMxb order by 1,2,3,4,5", "select * from s_CbZyBxDj order by 1,2,3,4",
                            "select * from s_CbZyZdb order by 1,2"})
        all += rows(sql);
    return all;
}

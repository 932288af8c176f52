// SPDX-License-Identifier: MIT
// A clerk's desk: the small hospital in a scratch file, the real host objects over it, the form opened through the
// module's entry points.
#pragma once

#include "host/references.h"
#include "tests/support/conversation.h"
#include "tests/support/failingengine.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/session.h"

#include <QDate>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>
#include <optional>

class Desk {
public:
    struct Options {
        QString user = QStringLiteral("01");
        std::optional<QString> setupFile = QStringLiteral("[system]\r\nconnStyle=1\r\n"); ///< none: no file
        std::vector<vortaq::ParameterOverride> parameters = {};
        QString database = {}; ///< another desk's file; empty: a small hospital of its own
        QDate today = QDate(2026, 3, 9); ///< on the module's calendar and in the database
    };

    Desk()
        : Desk(Options())
    {
    }
    explicit Desk(const Options &options);
    ~Desk();
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    /// Creates the form and shows it.
    QWidget &open();
    [[nodiscard]] QWidget &form() const { return *m_form; }

    /// With two desks in one program, what the module reaches of its host is this desk's from now on. The desk made
    /// last is the first to sit; a desk is opened before the next one is made. Calls are heard at every desk, questions
    /// at the one that sits.
    void sitDown();

    [[nodiscard]] Conversation &conversation() { return m_conversation; }
    [[nodiscard]] FailingEngine &engine() { return *m_engine; }
    /// What reached the host's error display.
    [[nodiscard]] const QStringList &errors() const { return m_errors; }
    [[nodiscard]] const QString &databaseFile() const { return m_databaseFile; }

    /// Runs SQLite's own SQL on the file, past engine and module, as another program would: over one connection, which
    /// keeps its temporary tables.
    void sqlite(const char *sql) const;
    /// The rows of a query in SQLite's own SQL, cells joined by "|"; null reads "null".
    [[nodiscard]] QStringList rows(const char *sql) const;
    /// Every row of every table that the module may change.
    [[nodiscard]] QStringList contents() const;

private:
    class OtherProgram;

    QTemporaryDir m_folder;
    QString m_databaseFile;
    std::unique_ptr<OtherProgram> m_otherProgram;
    QStringList m_errors;
    std::shared_ptr<FailingEngine> m_engine;
    std::unique_ptr<vortaq::HostObjects> m_objects;
    Conversation m_conversation;
    QWidget *m_form = nullptr;
    host::References m_references; // while another desk sits
};

// SPDX-License-Identifier: MIT
// One clerk at work: the connection, who he is, and the host parameters that hold for him.
#pragma once

#include "vortaq/Engine.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

namespace vortaq {

struct User {
    QString code;
    QString name;
    QString rights; ///< the granted function numbers as one text
};

/// A parameter given on the command line.
struct ParameterOverride {
    QString name;
    QString value;
};

class Session {
public:
    Session(std::shared_ptr<Engine> engine, User user, QHash<QString, QString> parameters)
        : m_engine(std::move(engine))
        , m_user(std::move(user))
        , m_parameters(std::move(parameters))
    {
    }

    /// The one connection that all host objects share.
    [[nodiscard]] Engine &engine() const { return *m_engine; }
    [[nodiscard]] const User &user() const { return m_user; }
    /// The parameter's text, or an invalid variant when the host has no such parameter. Names count letter case.
    [[nodiscard]] QVariant parameter(const QString &name) const;

private:
    std::shared_ptr<Engine> m_engine;
    User m_user;
    QHash<QString, QString> m_parameters; // in memory, because grids ask for colours at every painted cell
};

/// Signs `userCode` in; an empty code means the first user of the database. A parameter of the command line goes before
/// the user's own one, and that before the one common to all users. Throws StartupError for an unknown user and what
/// the engine throws.
[[nodiscard]] std::shared_ptr<Session> signIn(std::shared_ptr<Engine> engine, const QString &userCode,
                                              const std::vector<ParameterOverride> &overrides);

} // namespace vortaq

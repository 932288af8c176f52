// SPDX-License-Identifier: MIT
// Reads the user and his parameters from the host's own tables.
#include "vortaq/app/session.h"

#include "vortaq/app/exitcode.h"

#include <string_view>

namespace vortaq {

namespace {

QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QStringLiteral("''")) + QLatin1Char('\'');
}

QString cell(const automation::DataPacket &packet, int row, int column)
{
    const std::string_view text = packet.text(row, column);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

User findUser(Engine &engine, const QString &userCode)
{
    QString sql = QStringLiteral("select UserCode,UserName,RightParam from v_User");
    if (!userCode.isEmpty())
        sql += QStringLiteral(" where UserCode=") + quoted(userCode);
    sql += QStringLiteral(" order by UserCode");
    const automation::DataPacketPtr rows = engine.query(sql);
    if (rows->rowCount() > 0)
        return {cell(*rows, 0, 0), cell(*rows, 0, 1), cell(*rows, 0, 2)};
    throw StartupError(ExitCode::User,
                       userCode.isEmpty() ? QStringLiteral("数据库中没有任何用户。")
                                          : QStringLiteral("数据库中没有用户“%1”。").arg(userCode));
}

QHash<QString, QString> readParameters(Engine &engine, const QString &userCode)
{
    const automation::DataPacketPtr rows =
        engine.query(QStringLiteral("select UserCode,Name,Value from v_Parameter where UserCode='' or UserCode=")
                     + quoted(userCode));
    QHash<QString, QString> common;
    QHash<QString, QString> own;
    for (int row = 0; row < rows->rowCount(); ++row) {
        QHash<QString, QString> &target = cell(*rows, row, 0).isEmpty() ? common : own;
        target.insert(cell(*rows, row, 1), cell(*rows, row, 2));
    }
    common.insert(own);
    return common;
}

} // namespace

QVariant Session::parameter(const QString &name) const
{
    const auto found = m_parameters.constFind(name);
    return found == m_parameters.constEnd() ? QVariant() : QVariant(*found);
}

std::shared_ptr<Session> signIn(std::shared_ptr<Engine> engine, const QString &userCode,
                                const std::vector<ParameterOverride> &overrides)
{
    User user = findUser(*engine, userCode);
    QHash<QString, QString> parameters = readParameters(*engine, user.code);
    for (const ParameterOverride &override : overrides)
        parameters.insert(override.name, override.value);
    return std::make_shared<Session>(std::move(engine), std::move(user), std::move(parameters));
}

} // namespace vortaq

// SPDX-License-Identifier: MIT
// The users and parameters of the fixture.
#include "tests/vortaq/app/support/hostfixture.h"

namespace vortaq::test {

std::shared_ptr<ScriptedEngine> engineWithUsers()
{
    const QStringList userColumns{QStringLiteral("UserCode"), QStringLiteral("UserName"), QStringLiteral("RightParam")};
    const QStringList first{QStringLiteral("01"), QStringLiteral("管理员"), QStringLiteral("1,2,3")};
    const QStringList second{QStringLiteral("02"), QStringLiteral("李会计"), QStringLiteral("3")};
    const QString users = QStringLiteral("select UserCode,UserName,RightParam from v_User");
    const QString order = QStringLiteral(" order by UserCode");

    auto engine = std::make_shared<ScriptedEngine>();
    engine->answer(users + order, packet(userColumns, {first, second}));
    engine->answer(users + QStringLiteral(" where UserCode='01'") + order, packet(userColumns, {first}));
    engine->answer(users + QStringLiteral(" where UserCode='02'") + order, packet(userColumns, {second}));
    engine->answer(users + QStringLiteral(" where UserCode='O''x'") + order, packet(userColumns, {}));

    const QStringList columns{QStringLiteral("UserCode"), QStringLiteral("Name"), QStringLiteral("Value")};
    const QString parameters =
        QStringLiteral("select UserCode,Name,Value from v_Parameter where UserCode='' or UserCode=");
    const QStringList area{QString(), QStringLiteral("AreaCode"), QStringLiteral("4210")};
    const QStringList all{QString(), QStringLiteral("isBillAll"), QStringLiteral("1")};
    const QStringList own{QStringLiteral("02"), QStringLiteral("isBillAll"), QStringLiteral("2")};
    engine->answer(parameters + QStringLiteral("'01'"), packet(columns, {area, all}));
    engine->answer(parameters + QStringLiteral("'02'"), packet(columns, {own, area, all}));
    return engine;
}

} // namespace vortaq::test

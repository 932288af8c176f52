// SPDX-License-Identifier: MIT
#include "print/SettlementInterface.h"

#include "data/statements/settlement.h"
#include "host/references.h"
#include "host/statementbuffer.h"
#include "print/settlementlibrary.h"
#include "values/displayformat.h"

namespace print {

double SettlementInterface::QueryFreeFee(SettlementRoute route, const data::RecordKey &key, int billType)
{
    switch (route) {
    case SettlementRoute::Procedure:
        return byProcedure(key, billType);
    case SettlementRoute::Library:
        return byLibrary(key);
    case SettlementRoute::None:
        break;
    }
    return 0;
}

double SettlementInterface::byProcedure(const data::RecordKey &key, int billType)
{
    // "1&123.45#summary", or "0&" and the reason of a refusal; the amount is taken to begin at the third character.
    constexpr int contentBegin = 2;
    const QString result = m_statements.ExecProc(data::settlementCall(billType, key));
    if (result.startsWith(u'0')) {
        host::shared().FuncStorage.Alert(result.mid(contentBegin));
        return 0;
    }
    const qsizetype hash = result.indexOf(u'#') + 1;
    const qsizetype ampersand = result.indexOf(u'&') + 1;
    const qsizetype length = hash - ampersand - 1;
    const QString amount = length > 0 ? result.mid(contentBegin, length) : QString();
    const auto value = static_cast<double>(values::parseAmount(amount));
    m_printInfo = result.mid(hash);
    return value;
}

double SettlementInterface::byLibrary(const data::RecordKey &key) const
{
    const LibraryAnswer answer = askSettlementLibrary(FeeDllPath.trimmed(), key);
    switch (answer.outcome) {
    case LibraryAnswer::Outcome::Amount:
        return values::roundToCents(answer.amount);
    case LibraryAnswer::Outcome::Refused:
        host::shared().FuncStorage.Alert(answer.error);
        break;
    case LibraryAnswer::Outcome::NotLoaded:
        break;
    }
    return 0;
}

} // namespace print

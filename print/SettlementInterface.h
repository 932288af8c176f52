// SPDX-License-Identifier: MIT
// The scheme's settlement engine, behind a stored procedure or a library.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace host {
class StatementBuffer;
}

namespace print {

enum class SettlementRoute { None = 0, Procedure = 1, Library = 2 };

class SettlementInterface {
public:
    /// `statements` is the form's statement buffer; borrowed.
    explicit SettlementInterface(host::StatementBuffer &statements)
        : m_statements(statements)
    {
    }

    /// Amount that the scheme pays for a stay (type 1 current, 2 archived), in yuan; 0 when there is none to tell: no
    /// route, a refusal, which is alerted, or a library that cannot be loaded. On the procedure's route the summary is
    /// in printInfo() afterwards. A result text that is not understood throws std::invalid_argument; a failing
    /// procedure reaches the caller.
    double QueryFreeFee(SettlementRoute route, const data::RecordKey &key, int billType);

    /// Summary of the procedure's last success; a refusal and the library leave it as it was.
    [[nodiscard]] const QString &printInfo() const noexcept { return m_printInfo; }

    /// Path of the settlement library; empty means "Module\FeeInterFace.dll" beside the host.
    QString FeeDllPath;

private:
    double byProcedure(const data::RecordKey &key, int billType);
    double byLibrary(const data::RecordKey &key) const;

    host::StatementBuffer &m_statements;
    QString m_printInfo;
};

} // namespace print

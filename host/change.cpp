// SPDX-License-Identifier: MIT
#include "host/change.h"

#include "automation/error.h"
#include "host/references.h"

#include <exception>

namespace host {

namespace {

void rollBackAndAlert(References &host, const QString &failure, const QString &reason)
{
    std::exception_ptr rollbackFailure;
    try {
        host.DataCtl.RollbackTran();
    } catch (...) {
        rollbackFailure = std::current_exception();
    }
    host.FuncStorage.Alert(failure + QStringLiteral("\r\n") + reason);
    if (rollbackFailure)
        std::rethrow_exception(rollbackFailure);
}

} // namespace

void runChange(References &host, const QString &failure, FailingBegin failingBegin, const std::function<void()> &steps)
{
    if (failingBegin == FailingBegin::Propagates)
        host.DataCtl.BeginTran();
    try {
        if (failingBegin == FailingBegin::IsAlerted)
            host.DataCtl.BeginTran();
        steps();
    } catch (...) { // whatever a host throws, its transaction may not stay open
        rollBackAndAlert(host, failure, automation::messageOfCurrent());
    }
}

} // namespace host

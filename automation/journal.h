// SPDX-License-Identifier: MIT
// A record of every call on a host object, for the host's trace and for tests of whole conversations.
#pragma once

#include "automation/export.h"
#include "automation/latebound.h"

#include <QString>
#include <QVariantList>

namespace automation {

/// One finished call, in the order in which calls ended.
struct CallRecord {
    QString object; ///< "DataCtl", "FuncStorage", "CodeSearch"
    QString operation; ///< the name as the caller spelled it
    Kind kind = Kind::Method;
    QVariantList arguments;
    QVariant result; ///< invalid when there is none
    QString error; ///< the failure's message; empty when the call succeeded
    bool succeeded = true;
};

/// Receives the calls. Must not throw and must not call host objects.
class AUTOMATION_EXPORT CallObserver {
public:
    CallObserver();
    virtual ~CallObserver();
    CallObserver(const CallObserver &) = delete;
    CallObserver &operator=(const CallObserver &) = delete;

    virtual void called(const CallRecord &call) = 0;
};

/// Adds or removes an observer; it is told of calls in the order of adding. Borrowed, not owned.
AUTOMATION_EXPORT void addCallObserver(CallObserver *observer);
AUTOMATION_EXPORT void removeCallObserver(CallObserver *observer);

/// For the runtime itself.
[[nodiscard]] bool journalIsKept() noexcept;
void writeJournal(const CallRecord &call);

} // namespace automation

// SPDX-License-Identifier: MIT
// The pattern of every change in the database.
#pragma once

#include <QString>

#include <functional>

namespace host {

struct References;

/// What a BeginTran that fails leads to: it reaches the caller, or it is alerted like any failing step.
enum class FailingBegin { Propagates, IsAlerted };

/// Begins a transaction and runs `steps`: the statements, the commit, the hint and the reloads, in the order that the
/// action shows to its user. Any error in them, a reload after the commit included, leads to RollbackTran and to an
/// Alert of `failure`, a line break and the error's message. A rollback that fails too is raised after the alert.
void runChange(References &host, const QString &failure, FailingBegin failingBegin, const std::function<void()> &steps);

} // namespace host

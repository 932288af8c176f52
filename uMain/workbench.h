// SPDX-License-Identifier: MIT
// What the pages of the main form share.
#pragma once

#include "host/references.h"
#include "host/statementbuffer.h"
#include "uMain/session.h"

#include <functional>

class TdxTreeList;

/// One for each main form, outliving its pages. Pages do not know each other: whoever changes rows calls the reload
/// routines of the pages that show them, and each page connects its own.
class Workbench : public host::StatementBuffer {
public:
    Session session;

    [[nodiscard]] host::References &host() { return host::shared(); }

    /// Reload routines, named after what they reload.
    struct Reloads {
        std::function<void()> unbilledTree = [] {};
        std::function<void()> candidates = [] {};
        std::function<void()> reportedBills = [] {};
        std::function<void()> returnedBills = [] {};
        std::function<void()> history = [] {};
    };
    Reloads reload;

    /// The tree of bills on the page in front; null when that page is not for reporting. Set by the form.
    std::function<const TdxTreeList *()> activeBillTree;

    /// The printed documents of a grid's focused row (type 1 tables in use, 2 archive); set by the form.
    struct Documents {
        std::function<void(const TdxTreeList &grid, int billType)> settlementSheet;
        std::function<void(const TdxTreeList &grid, int billType)> approvalForm;
        std::function<void(const TdxTreeList &grid, int billType)> feeList;
    };
    Documents print;
};

// SPDX-License-Identifier: MIT
// All that the two bill pages differ in.
#pragma once

#include "data/statements/billpage.h"
#include "uMain/workbench.h"

#include <functional>

struct BillPageKind {
    const data::BillPageSpelling &spelling;
    std::function<void()> Workbench::Reloads::*ownTree; ///< reload routine of the page's own tree
    bool billsCarryFees; ///< whether bill nodes hold the bill's amounts too
    const char *cancelRecordQuestion; ///< UTF-8

    // Component names
    const char *page;
    const char *tree;
    const char *treeColumn;
    const char *grid;
    const char *interfaceColumn; ///< behind the grid's name
    const char *captionPanel;
    const char *caption;
    const char *dataSet;
    const char *count;
    const char *totalFee;
    const char *canFreeFee;
    const char *totalsPanel;
    const char *cancelButton;
    const char *uploadButton;
    const char *addButton;
    const char *exitButton;
    int cancelTag; ///< function numbers, see uMain/rights.h
    int addTag;
    const char *menu;
    const char *reportItem;
    int reportTag;
    const char *cancelItem;
    const char *uploadItem;
};

extern const BillPageKind ReportedBills;
extern const BillPageKind ReturnedBills;

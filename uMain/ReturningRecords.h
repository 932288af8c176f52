// SPDX-License-Identifier: MIT
// The button "退单" of the bill-making page: ticked records go back to the ward as not discharged.
#pragma once

#include "data/recordkey.h"

#include <vector>

class QWidget;
class Workbench;

/// Asks, then returns all records in one transaction, or none; alerts a failure. `window` is the question's parent.
void returnRecords(Workbench &workbench, const std::vector<data::RecordKey> &records, QWidget *window);

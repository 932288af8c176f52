// SPDX-License-Identifier: MIT
// The three host objects that every form of the module shares.
#pragma once

#include "host/codesearch.h"
#include "host/datactl.h"
#include "host/funcstorage.h"

namespace host {

struct References {
    DataCtlProxy DataCtl;
    FuncStorageProxy FuncStorage;
    CodeSearchProxy CodeSearch;

    /// Creates the objects anew, in the order above. Throws automation::Error when the host does not offer one.
    void create();
};

/// Module-wide: empty until the main form is first shown, created anew at each showing, released when the module is
/// unloaded.
[[nodiscard]] References &shared();

} // namespace host

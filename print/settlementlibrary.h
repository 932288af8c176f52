// SPDX-License-Identifier: MIT
// The settlement library: a file of the hospital's with one exported function.
#pragma once

#include "data/recordkey.h"

#include <QString>

namespace print {

struct LibraryAnswer {
    enum class Outcome { Amount, Refused, NotLoaded };
    Outcome outcome = Outcome::NotLoaded;
    double amount = 0; ///< yuan, as the library gave it
    QString error; ///< the reason of a refusal
};

/// Loads the library, calls its function "GetFreeFees" (see samples/feeinterface) and unloads it again. An empty path
/// means "Module\FeeInterFace.dll"; a relative one stands beside the host's executable, and on this platform the
/// suffix is that of a shared object. Throws std::runtime_error when the library lacks the function.
[[nodiscard]] LibraryAnswer askSettlementLibrary(const QString &path, const data::RecordKey &key);

} // namespace print

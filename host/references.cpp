// SPDX-License-Identifier: MIT
#include "host/references.h"

namespace host {

void References::create()
{
    const auto bind = [](const char16_t *identifier) { return automation::LateBound(QString::fromUtf16(identifier)); };
    DataCtl = DataCtlProxy(bind(DataCtlProxy::Identifier));
    FuncStorage = FuncStorageProxy(bind(FuncStorageProxy::Identifier));
    CodeSearch = CodeSearchProxy(bind(CodeSearchProxy::Identifier));
}

References &shared()
{
    static References references;
    return references;
}

} // namespace host

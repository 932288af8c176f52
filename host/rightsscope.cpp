// SPDX-License-Identifier: MIT
#include "host/rightsscope.h"

#include "data/codes.h"
#include "host/funcstorage.h"
#include "host/parameters.h"

namespace host {

namespace {

bool billAllIs(FuncStorageProxy &funcStorage, QStringView value)
{
    return equals(funcStorage.CustomParam(parameter::IsBillAll), value.toString());
}

data::Grant askGrant(FuncStorageProxy &funcStorage)
{
    data::Grant grant;
    grant.userCode = funcStorage.UserID();
    grant.rightCode = funcStorage.CustomParam(parameter::RightCode).toString();
    return grant;
}

} // namespace

std::optional<QString> institutionList(FuncStorageProxy &funcStorage)
{
    if (billAllIs(funcStorage, data::BillAll))
        return data::institutionsWithUnbilled();
    if (billAllIs(funcStorage, data::BillGranted))
        return data::grantedInstitutionsWithUnbilled(askGrant(funcStorage));
    return std::nullopt;
}

std::optional<data::Grant> recordGrant(FuncStorageProxy &funcStorage)
{
    if (billAllIs(funcStorage, data::BillGranted))
        return askGrant(funcStorage);
    return std::nullopt;
}

} // namespace host

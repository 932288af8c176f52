// SPDX-License-Identifier: MIT
// The statement of the main form's start.
#include "data/statements/startup.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString settlementProcedureLookup()
{
    return u" select name from SysObjects where name ='Pro_Zy_FeeInterFace' "_s;
}

} // namespace data

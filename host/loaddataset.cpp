// SPDX-License-Identifier: MIT
#include "host/loaddataset.h"

#include "host/clientdataset.h"
#include "host/datactl.h"

namespace host {

void loadDataSet(DataCtlProxy &dataCtl, const QString &sql, TClientDataSet &target)
{
    target.setData(dataCtl.OpenSql(sql));
    dataCtl.CloseSql();
}

} // namespace host

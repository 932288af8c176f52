// SPDX-License-Identifier: MIT
// The one way of a query's rows into a data set.
#pragma once

class QString;
class TClientDataSet;

namespace host {

class DataCtlProxy;

/// OpenSql, load, CloseSql. When the query fails the data set keeps its rows and CloseSql is not called.
void loadDataSet(DataCtlProxy &dataCtl, const QString &sql, TClientDataSet &target);

} // namespace host

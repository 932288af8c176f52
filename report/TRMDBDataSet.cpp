// SPDX-License-Identifier: MIT
#include "report/TRMDBDataSet.h"

TRMDBDataSet::TRMDBDataSet(QObject *parent)
    : QObject(parent)
{
}

// SPDX-License-Identifier: MIT
#include "forms/hostformats.h"

#include "host/parameters.h"
#include "host/references.h"
#include "toolkit/TdxCurrencyEdit.h"
#include "toolkit/TdxTreeList.h"

namespace {

QString digitalFormat()
{
    return host::shared().FuncStorage.CustomParam(host::parameter::DigitalFormat).toString();
}

} // namespace

void ApplyMoneyFormat(TdxTreeList &grid)
{
    for (int i = 0; i < grid.columnCount(); ++i) {
        TdxTreeListColumn *column = grid.column(i);
        if (column->metaObject() == &TdxTreeListCurrencyColumn::staticMetaObject)
            static_cast<TdxTreeListCurrencyColumn *>(column)->setDisplayFormat(digitalFormat());
    }
}

void ApplyEditFormat(QWidget &form)
{
    for (TdxCurrencyEdit *edit : form.findChildren<TdxCurrencyEdit *>())
        edit->setDisplayFormat(digitalFormat());
}

void applyBackground(TdxTreeList &grid)
{
    grid.setColor(host::toColour(host::shared().FuncStorage.CustomParam(host::parameter::BackgroundColour)));
}

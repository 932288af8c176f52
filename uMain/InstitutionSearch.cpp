// SPDX-License-Identifier: MIT
#include "uMain/InstitutionSearch.h"

#include "data/institutionlookup.h"
#include "toolkit/virtualkey.h"
#include "uMain/workbench.h"

namespace key = toolkit::virtualkey;

bool opensCodeSearch(int virtualKey, bool fieldIsEmpty)
{
    switch (virtualKey) {
    case key::Return:
        return fieldIsEmpty;
    case key::Shift:
    case key::Control:
    case key::Menu:
    case key::Escape:
        return false;
    default:
        return true;
    }
}

Institution searchInstitution(Workbench &workbench, int virtualKey)
{
    const bool swallowed = virtualKey == key::Delete || virtualKey == key::Back;
    const QChar code = swallowed ? QChar(0) : QChar(virtualKey);

    host::CodeSearchProxy &search = workbench.host().CodeSearch;
    search.Init();
    search.setTable(data::lookupTable());
    search.setWhere(data::lookupWhere(workbench.session.AreaCode));
    search.setOrderBy(QString());
    search.setFieldList(data::lookupFieldList());
    search.setCustomField(data::lookupCustomField());
    search.setCodeType(workbench.host().FuncStorage.GetSRM());
    search.setCode(QString(code));
    search.SetPosition(0, -2, 18);
    search.Show();
    Institution chosen;
    chosen.code = search.GetCodeValue(data::lookupCodeColumn());
    chosen.name = search.GetCodeValue(data::lookupNameColumn());
    return chosen;
}

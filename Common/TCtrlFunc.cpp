// SPDX-License-Identifier: MIT
// The utility class: texts, setup file, registry, clock, data sources, processes, grids.
#include "Common/TCtrlFunc.h"

#include "Common/columnwidth.h"
#include "Common/drawingsurface.h"
#include "Common/inifile.h"
#include "Common/processes.h"
#include "Common/shellopen.h"
#include "Common/splittext.h"
#include "Common/systime.h"
#include "Common/userregistry.h"

QString TCtrlFunc::ReadIniStr(const QString &fileName, const QString &section, const QString &key) const
{
    return common::readIniFile(common::iniFilePath(fileName), section, key);
}

void TCtrlFunc::WriteIniStr(const QString &fileName, const QString &section, const QString &key,
                            const QString &value) const
{
    common::writeIniFile(common::iniFilePath(fileName), section, key, value);
}

QString TCtrlFunc::SplitString(const QString &source, const QString &separator, bool before) const
{
    return common::splitString(source, separator, before ? common::Side::Before : common::Side::After);
}

int TCtrlFunc::SplitItemCount(const QString &source, const QString &separator) const
{
    return common::splitItemCount(source, separator);
}

QString TCtrlFunc::GetAllSplitStr(const QString &source, const QString &separator, int index) const
{
    return common::splitItem(source, separator, index);
}

QString TCtrlFunc::GetRegKeyValue(const QString &keyPath, const QString &valueName) const
{
    return common::registryValue(keyPath, valueName);
}

QString TCtrlFunc::GetSysTime() const
{
    return common::sysTimeText(QDateTime::currentDateTime());
}

bool TCtrlFunc::WriteODBC(const common::OdbcSource &source) const
{
    return common::writeOdbcSource(source);
}

int TCtrlFunc::KillTask(const QString &fileName) const
{
    return common::killProcesses(fileName);
}

bool TCtrlFunc::ExeFile(const QString &text, QWidget *owner) const
{
    if (owner)
        owner->window()->raise();
    return common::openByShell(text);
}

common::DrawingSurface *TCtrlFunc::DrawNoCanvas(QWidget &control) const
{
    return new common::DrawingSurface(control);
}

void TCtrlFunc::AutoColumnWidth(QAbstractItemView &grid) const
{
    common::fitColumns(grid);
}

// SPDX-License-Identifier: MIT
// The utility class: texts, setup file, registry, clock, data sources, processes, grids.
#pragma once

#include "Common/odbcsource.h"

#include <QString>

class QAbstractItemView;
class QWidget;

namespace common {
class DrawingSurface;
}

/// Small stateless helpers; every method works on its arguments only.
class TCtrlFunc {
public:
    /// A value of a setup file beside the executable; empty when file, section or key are missing. Nothing is created.
    [[nodiscard]] QString ReadIniStr(const QString &fileName, const QString &section, const QString &key) const;
    /// Throws common::IniError when the file cannot be written or a name or the value does not fit in it.
    void WriteIniStr(const QString &fileName, const QString &section, const QString &key, const QString &value) const;

    /// The part before the first separator (`before`), or the part after it; see common::splitString().
    [[nodiscard]] QString SplitString(const QString &source, const QString &separator, bool before) const;
    /// One more than there are separators; 0 for an empty source.
    [[nodiscard]] int SplitItemCount(const QString &source, const QString &separator) const;
    /// The trimmed item at a position from 0, empty where there is none; an empty source comes back as it is.
    [[nodiscard]] QString GetAllSplitStr(const QString &source, const QString &separator, int index) const;

    /// A value of the current user's registry as text; empty when it is missing. See common::registryValue().
    [[nodiscard]] QString GetRegKeyValue(const QString &keyPath, const QString &valueName) const;
    /// The current moment as 17 digits, from the year to the millisecond.
    [[nodiscard]] QString GetSysTime() const;

    /// Writes and registers a data source for the current user; false when it cannot, and then nothing is written. See
    /// common::writeOdbcSource().
    [[nodiscard]] bool WriteODBC(const common::OdbcSource &source) const;
    /// Ends every process of that executable file name; see common::killProcesses().
    int KillTask(const QString &fileName) const;
    /// Lets the desktop open a file, an address or a command; see common::openByShell(). The owner's window comes to
    /// the front, so that what opens next stands before it.
    [[nodiscard]] bool ExeFile(const QString &text, QWidget *owner) const;
    /// A surface to draw on over the control, which owns it; see common::DrawingSurface.
    [[nodiscard]] common::DrawingSurface *DrawNoCanvas(QWidget &control) const;
    /// Columns of a table or a tree as wide as their widest texts, the grid as wide as its columns; see
    /// common::fitColumns().
    void AutoColumnWidth(QAbstractItemView &grid) const;
};

// SPDX-License-Identifier: MIT
// The hospital's printed forms, laid beside a desk's host.
#pragma once

#include "Common/executablefolder.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

/// Copies all forms of the folder `templates` into the folder "Module" of the desk that sits.
inline void layForms(const QString &templates)
{
    const QDir from(templates);
    QDir to(common::executableFolder());
    if (!to.mkpath(QStringLiteral("Module")) || !to.cd(QStringLiteral("Module")))
        throw std::runtime_error("no folder for the forms");
    for (const QString &name : from.entryList({QStringLiteral("*.rmf")}, QDir::Files)) {
        if (!QFile::copy(from.filePath(name), to.filePath(name)))
            throw std::runtime_error("cannot copy a form");
    }
}

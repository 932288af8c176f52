// SPDX-License-Identifier: MIT
#include "report/output/filename.h"

#include "report/template/template.h"

namespace report {

QString fileName(const Template &source)
{
    QString name = source.title;
    for (const QChar forbidden : QStringView(u"\\/:*?\"<>|"))
        name.remove(forbidden);
    return name.isEmpty() ? QStringLiteral("报表") : name;
}

} // namespace report

// SPDX-License-Identifier: MIT
#include "uMain/rights.h"

#include "host/references.h"

#include <QAbstractButton>
#include <QAction>

namespace {

bool isForbidden(const QObject &command)
{
    const int tag = command.property("tag").toInt();
    return tag != 0 && !host::shared().FuncStorage.RightParam().contains(QString::number(tag));
}

} // namespace

void applyRights(const QObject &form)
{
    for (QAbstractButton *button : form.findChildren<QAbstractButton *>()) {
        if (isForbidden(*button))
            button->setEnabled(false);
    }
    for (QAction *item : form.findChildren<QAction *>()) {
        if (isForbidden(*item))
            item->setEnabled(false);
    }
}

// SPDX-License-Identifier: MIT
// Error box and passing hint.
#include "vortaq/app/screenmessages.h"

#include "vortaq/app/boxtext.h"
#include "vortaq/app/hintlabel.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/windowatwork.h"

#include <QMessageBox>

namespace vortaq {

void ScreenMessages::alert(const QString &message)
{
    QMessageBox box(QMessageBox::Critical, programTitle(), {}, QMessageBox::NoButton, windowAtWork());
    box.setObjectName(QStringLiteral("alertBox"));
    setBoxText(box, message);
    box.addButton(QStringLiteral("确定"), QMessageBox::AcceptRole);
    box.exec();
}

void ScreenMessages::hint(const QString &message)
{
    // A dialog over which the hint hangs may close at once; the window behind it stays.
    QWidget *window = windowAtWork();
    while (window && window->parentWidget())
        window = window->parentWidget()->window();
    if (!window)
        return;
    auto *label = window->findChild<HintLabel *>(QString(), Qt::FindDirectChildrenOnly);
    if (!label)
        label = new HintLabel(window);
    label->display(message);
}

} // namespace vortaq

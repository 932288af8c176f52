// SPDX-License-Identifier: MIT
#include "vortaq/app/formrefresh.h"

#include "vortaq/app/naming.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QVariant>
#include <QWidget>

namespace vortaq {

bool mayDiscardInput(const QWidget &form)
{
    if (!form.property("unsavedInput").toBool())
        return true;
    QMessageBox box(QMessageBox::Question, programTitle(),
                    QStringLiteral("当前功能里有还没有保存的内容（例如打勾选择的记录），刷新后将会丢失。\n是否继续？"),
                    QMessageBox::NoButton, form.window());
    box.setObjectName(QStringLiteral("refreshQuestion"));
    QPushButton *yes = box.addButton(QStringLiteral("是(&Y)"), QMessageBox::YesRole);
    QPushButton *no = box.addButton(QStringLiteral("否(&N)"), QMessageBox::NoRole);
    yes->setObjectName(QStringLiteral("btnYes"));
    no->setObjectName(QStringLiteral("btnNo"));
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

void showAnew(QWidget &form)
{
    const QPointer<QWidget> focused = form.window()->focusWidget();
    form.hide();
    form.show();
    if (focused && form.isAncestorOf(focused))
        focused->setFocus(Qt::OtherFocusReason);
}

} // namespace vortaq

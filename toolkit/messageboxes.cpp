// SPDX-License-Identifier: MIT
// The module's own modal questions, behind a seam that tests can answer.
#include "toolkit/messageboxes.h"

#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

namespace toolkit {

namespace {

/// Patients' names stand in some texts, so nothing in them is taken for markup.
void prepare(QMessageBox &box, const QString &title, const QString &text)
{
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
}

/// A question that lists many records would push its buttons off the screen: then the text scrolls.
void keepOnScreen(QMessageBox &box)
{
    const int room = box.screen()->availableGeometry().height() / 2;
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!label || label->sizeHint().height() <= room)
        return;
    auto *area = new QScrollArea(&box);
    area->setFrameShape(QFrame::NoFrame);
    const std::unique_ptr<QLayoutItem> replaced(box.layout()->replaceWidget(label, area));
    area->setWidget(label);
    area->setMinimumSize(label->sizeHint().width() + area->verticalScrollBar()->sizeHint().width(), room);
}

QPushButton *addButton(QMessageBox &box, const QString &name, const QString &caption, QMessageBox::ButtonRole role)
{
    QPushButton *button = box.addButton(caption, role);
    button->setObjectName(name);
    return button;
}

enum class Default { Yes, No };

class RealMessageBoxes final : public MessageBoxes {
    static bool answer(QWidget *parent, const QString &title, const QString &text, Default byDefault)
    {
        QMessageBox box(parent);
        prepare(box, title, text);
        QPushButton *yes = addButton(box, QStringLiteral("btnYes"), QStringLiteral("是(&Y)"), QMessageBox::YesRole);
        QPushButton *no = addButton(box, QStringLiteral("btnNo"), QStringLiteral("否(&N)"), QMessageBox::NoRole);
        box.setDefaultButton(byDefault == Default::Yes ? yes : no);
        box.setEscapeButton(no);
        keepOnScreen(box);
        box.exec();
        return box.clickedButton() == yes;
    }

public:
    bool ask(QWidget *parent, const QString &title, const QString &text) override
    {
        return answer(parent, title, text, Default::Yes);
    }

    bool askBeforeLoss(QWidget *parent, const QString &title, const QString &text) override
    {
        return answer(parent, title, text, Default::No);
    }

    void tell(QWidget *parent, const QString &title, const QString &text) override
    {
        QMessageBox box(parent);
        prepare(box, title, text);
        QPushButton *ok = addButton(box, QStringLiteral("btnOk"), QStringLiteral("确定"), QMessageBox::AcceptRole);
        box.setDefaultButton(ok);
        box.setEscapeButton(ok);
        keepOnScreen(box);
        box.exec();
    }
};

MessageBoxes *&boxesInUse()
{
    static MessageBoxes *boxes = nullptr;
    return boxes;
}

} // namespace

MessageBoxes &messageBoxes()
{
    static RealMessageBoxes real;
    return boxesInUse() ? *boxesInUse() : real;
}

void setMessageBoxes(MessageBoxes *boxes)
{
    boxesInUse() = boxes;
}

} // namespace toolkit

// SPDX-License-Identifier: MIT
// The module's own modal questions, behind a seam that tests can answer.
#include "toolkit/messageboxes.h"

#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
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

/// What the screen has room for beside icon, buttons and borders.
QSize roomFor(const QMessageBox &box)
{
    const QSize screen = box.screen()->availableGeometry().size();
    return {std::min(screen.width() / 2, 500), screen.height() / 2};
}

bool fits(const QMessageBox &box, const QString &text, const QSize &room)
{
    constexpr qsizetype most = 4000; // characters; no screen holds as many, and measuring more takes its time
    const int flags = Qt::TextWordWrap | Qt::TextWrapAnywhere;
    return text.size() < most
        && box.fontMetrics().boundingRect(QRect(QPoint(0, 0), room), flags, text).height() <= room.height();
}

void addLine(QVBoxLayout &layout, const QString &name, const QString &text)
{
    auto *line = new QLabel(text, layout.parentWidget());
    line->setObjectName(name);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    layout.addWidget(line);
}

void addList(QVBoxLayout &layout, const QStringList &lines, const QSize &room)
{
    auto *list = new QTextEdit(layout.parentWidget());
    list->setPlainText(lines.join(u'\n'));
    list->setObjectName(QStringLiteral("boxList"));
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    list->setFixedSize(room);
    layout.addWidget(list);
}

/// A question that lists many records would push its buttons and its last line, the question proper, off the screen:
/// then what stands between the first line and the last scrolls.
void keepOnScreen(QMessageBox &box)
{
    const QSize room = roomFor(box);
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!label || fits(box, box.text(), room))
        return;
    auto *panel = new QWidget(&box);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    QStringList lines = box.text().split(QStringLiteral("\r\n"));
    const QSize twoLines(room.width(), 2 * box.fontMetrics().lineSpacing());
    const bool framed = lines.size() > 2 && fits(box, lines.first(), twoLines) && fits(box, lines.last(), twoLines);
    if (framed)
        addLine(*layout, QStringLiteral("boxBegin"), lines.takeFirst());
    const QString end = framed ? lines.takeLast() : QString();
    addList(*layout, lines, framed ? room - QSize(0, twoLines.height()) : room);
    if (framed)
        addLine(*layout, QStringLiteral("boxEnd"), end);
    const std::unique_ptr<QLayoutItem> replaced(box.layout()->replaceWidget(label, panel));
    label->hide(); // it keeps the text for whoever asks the box for it
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

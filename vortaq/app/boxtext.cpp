// SPDX-License-Identifier: MIT
#include "vortaq/app/boxtext.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTextEdit>

#include <algorithm>
#include <memory>

namespace vortaq {

namespace {

QString fieldName()
{
    return QStringLiteral("boxText");
}

/// Room for a text and its box; the rest of the screen is for icon, buttons and borders.
QSize roomFor(const QMessageBox &box)
{
    const QSize screen = box.screen()->availableGeometry().size();
    return {std::min(screen.width() / 2, 500), screen.height() / 2};
}

bool fits(const QString &text, const QMessageBox &box)
{
    constexpr qsizetype most = 4000; // characters; no screen holds as many, and measuring more takes its time
    const QSize room = roomFor(box);
    return text.size() < most
        && box.fontMetrics()
               .boundingRect(QRect(QPoint(0, 0), room), Qt::TextWordWrap | Qt::TextWrapAnywhere, text)
               .height()
        <= room.height();
}

QTextEdit *field(QMessageBox &box)
{
    return box.findChild<QTextEdit *>(fieldName());
}

void addField(QMessageBox &box)
{
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    auto *text = new QTextEdit(&box);
    text->setObjectName(fieldName());
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    text->setFixedSize(roomFor(box));
    const std::unique_ptr<QLayoutItem> replaced(box.layout()->replaceWidget(label, text));
    label->hide();
}

} // namespace

void setBoxText(QMessageBox &box, const QString &text)
{
    box.setTextFormat(Qt::PlainText); // a database's own words may hold "<"
    if (!field(box) && !fits(text, box))
        addField(box);
    box.setText(text); // fits an open box to its contents
    if (QTextEdit *shown = field(box))
        shown->setPlainText(text);
}

} // namespace vortaq

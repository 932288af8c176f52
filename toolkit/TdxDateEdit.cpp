// SPDX-License-Identifier: MIT
// A box for a date, typed as yyyy-mm-dd or picked from a calendar.
#include "toolkit/TdxDateEdit.h"

#include "toolkit/calendarpopup.h"
#include "toolkit/clock.h"
#include "toolkit/guard.h"
#include "values/dateformat.h"

#include <QAction>
#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>

namespace {

/// A sheet of a calendar in the text's colour, drawn large enough for every display scale.
QIcon calendarIcon(const QColor &colour)
{
    constexpr int Side = 64;
    QPixmap pixmap(Side, Side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 4));
    painter.drawRoundedRect(QRectF(8, 12, 48, 44), 4, 4);
    painter.fillRect(QRectF(8, 14, 48, 10), colour);
    painter.drawLine(QPointF(20, 6), QPointF(20, 14));
    painter.drawLine(QPointF(44, 6), QPointF(44, 14));
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column)
            painter.fillRect(QRectF(16 + 12.5 * column, 31 + 11 * row, 7, 6), colour);
    }
    return pixmap;
}

} // namespace

TdxDateEdit::TdxDateEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_calendarAction(addAction(calendarIcon(palette().color(QPalette::Text)), QLineEdit::TrailingPosition))
{
    setMaxLength(10);
    setPlaceholderText(QStringLiteral("年-月-日"));
    m_calendarAction->setObjectName(QStringLiteral("calendarAction"));
    m_calendarAction->setText(QStringLiteral("选择日期"));
    m_calendarAction->setToolTip(QStringLiteral("选择日期（Alt+↓）"));
    toolkit::connectGuarded(m_calendarAction, &QAction::triggered, this, [this] { showCalendar(); });
}

std::optional<QDate> TdxDateEdit::date() const
{
    return values::parseDate(text());
}

void TdxDateEdit::setDate(const QDate &date)
{
    setText(values::formatDate(date));
}

void TdxDateEdit::showCalendar()
{
    if (isReadOnly())
        return;
    auto *popup = new toolkit::CalendarPopup(
        date().value_or(toolkit::today()), [this](const QDate &day) { setDate(day); }, this);
    popup->popUpAt(*this);
}

void TdxDateEdit::keyPressEvent(QKeyEvent *event)
{
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    if (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && alt)) {
        toolkit::guarded([this] { showCalendar(); });
    } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        toolkit::guarded([this, event] { stepDays(event->key() == Qt::Key_Up ? 1 : -1); });
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void TdxDateEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_calendarAction->setIcon(calendarIcon(palette().color(QPalette::Text)));
}

QDate TdxDateEdit::dateOrInvalid() const
{
    return date().value_or(QDate());
}

void TdxDateEdit::stepDays(int days)
{
    if (const auto current = date(); current && !isReadOnly())
        setDate(current->addDays(days));
}

// SPDX-License-Identifier: MIT
// The calendar that a date box drops down.
#include "toolkit/calendarpopup.h"

#include "toolkit/clock.h"
#include "toolkit/guard.h"
#include "values/dateformat.h"

#include <QCalendarWidget>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace toolkit {

CalendarPopup::CalendarPopup(const QDate &date, std::function<void(const QDate &)> chosen, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_calendar(new QCalendarWidget(this))
    , m_chosen(std::move(chosen))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    m_calendar->setLocale(QLocale(QLocale::Chinese, QLocale::China));
    m_calendar->setFirstDayOfWeek(Qt::Monday);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setSelectedDate(date);

    const QDate current = today();
    auto *todayButton = new QPushButton(QStringLiteral("今天 ") + values::formatDate(current), this);
    todayButton->setObjectName(QStringLiteral("btnToday"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_calendar);
    layout->addWidget(todayButton);

    connectGuarded(m_calendar, &QCalendarWidget::activated, this, [this](const QDate &day) { choose(day); });
    connectGuarded(m_calendar, &QCalendarWidget::clicked, this, [this](const QDate &day) { choose(day); });
    connectGuarded(todayButton, &QPushButton::clicked, this, [this, current] { choose(current); });
}

void CalendarPopup::popUpAt(const QWidget &box)
{
    adjustSize();
    const QRect screen = box.screen()->availableGeometry();
    const QPoint below = box.mapToGlobal(QPoint(0, box.height()));
    const bool fitsBelow = below.y() + height() <= screen.bottom() + 1;
    const int top = fitsBelow ? below.y() : std::max(screen.top(), box.mapToGlobal(QPoint()).y() - height());
    move(std::clamp(below.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - width())), top);
    show();
    m_calendar->setFocus();
}

void CalendarPopup::choose(const QDate &date)
{
    // A double click and Enter report a day twice.
    if (const auto chosen = std::exchange(m_chosen, nullptr)) {
        close();
        chosen(date);
    }
}

} // namespace toolkit

// SPDX-License-Identifier: MIT
// The calendar that a date box drops down.
#pragma once

#include <QDate>
#include <QFrame>

#include <functional>

class QCalendarWidget;

namespace toolkit {

/// Closes by itself when a day is chosen (click, Enter, or the button for today), by Escape, and by a click elsewhere.
class CalendarPopup final : public QFrame {
    Q_OBJECT

public:
    /// `chosen` runs guarded, once at most.
    CalendarPopup(const QDate &date, std::function<void(const QDate &)> chosen, QWidget *parent);

    /// Below the box, or above it where the screen ends.
    void popUpAt(const QWidget &box);

private:
    void choose(const QDate &date);

    QCalendarWidget *m_calendar;
    std::function<void(const QDate &)> m_chosen;
};

} // namespace toolkit

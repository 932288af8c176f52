// SPDX-License-Identifier: MIT
// A box for a date, typed as yyyy-mm-dd or picked from a calendar.
#pragma once

#include <QDate>
#include <QLineEdit>

#include <optional>

class QAction;
class QKeyEvent;

/// The text stays as it was typed, so that a date that does not exist can be refused with a message (see parseDate()).
/// Up and Down go to the next and the previous day (nowhere from a text that is no date); Alt+Down, F4 and the button
/// at the end drop the calendar down.
class TdxDateEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QDate date READ dateOrInvalid WRITE setDate)

public:
    explicit TdxDateEdit(QWidget *parent = nullptr);

    /// Empty when the text is not a date.
    [[nodiscard]] std::optional<QDate> date() const;
    /// An invalid date empties the box.
    void setDate(const QDate &date);

    /// Drops the calendar down at the box; choosing a day there sets the date, Escape leaves it.
    void showCalendar();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QDate dateOrInvalid() const;
    void stepDays(int days);

    QAction *m_calendarAction;
};

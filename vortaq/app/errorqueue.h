// SPDX-License-Identifier: MIT
// Shows errors that no handler caught, one box at a time, while the program goes on.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <deque>

class QMessageBox;

namespace vortaq {

/// Takes the error display over for its lifetime. Boxes are opened from the event loop, because an error may arise
/// while a window is being painted; a message equal to the one shown or to one that waits is counted, not repeated.
class ErrorQueue : public QObject {
    Q_OBJECT

public:
    ErrorQueue();
    ~ErrorQueue() override;

    /// Also writes the message to the standard error output.
    void report(const QString &message);

private:
    struct Entry {
        QString message;
        int times = 1;
    };

    void showNext();
    void leave();
    void refreshBox();

    std::deque<Entry> m_entries; // the first is the one shown
    QPointer<QMessageBox> m_box;
    bool m_scheduled = false;
};

} // namespace vortaq

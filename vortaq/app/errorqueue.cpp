// SPDX-License-Identifier: MIT
// The queue of error boxes.
#include "vortaq/app/errorqueue.h"

#include "vortaq/app/boxtext.h"
#include "vortaq/app/console.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/windowatwork.h"

#include "automation/errordisplay.h"

#include <QMessageBox>

#include <algorithm>
#include <memory>

namespace vortaq {

ErrorQueue::ErrorQueue()
{
    automation::setErrorDisplay([this](const QString &message) { report(message); });
}

ErrorQueue::~ErrorQueue()
{
    automation::setErrorDisplay({});
    if (m_box)
        m_box->disconnect(this);
    const std::unique_ptr<QMessageBox> open(m_box.data());
}

void ErrorQueue::report(const QString &message)
{
    const auto known = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&message](const Entry &entry) { return entry.message == message; });
    if (known != m_entries.end()) {
        ++known->times;
        refreshBox();
        return;
    }
    writeError(message);
    m_entries.push_back({message});
    if (!m_box && !m_scheduled) {
        m_scheduled = true;
        QMetaObject::invokeMethod(this, &ErrorQueue::showNext, Qt::QueuedConnection);
    }
}

void ErrorQueue::showNext()
{
    m_scheduled = false;
    if (m_entries.empty() || m_box)
        return;
    m_box = new QMessageBox(QMessageBox::Critical, programTitle(), {}, QMessageBox::NoButton, windowAtWork());
    m_box->setObjectName(QStringLiteral("errorBox"));
    m_box->addButton(QStringLiteral("确定"), QMessageBox::AcceptRole);
    refreshBox();
    // The window under the box may go first and take the box along.
    connect(m_box, &QObject::destroyed, this, &ErrorQueue::leave);
    connect(m_box, &QDialog::finished, m_box, &QObject::deleteLater);
    m_box->open();
}

void ErrorQueue::leave()
{
    m_entries.pop_front();
    m_box = nullptr;
    if (!m_entries.empty()) {
        m_scheduled = true;
        QMetaObject::invokeMethod(this, &ErrorQueue::showNext, Qt::QueuedConnection);
    }
}

void ErrorQueue::refreshBox()
{
    if (!m_box)
        return;
    const Entry &entry = m_entries.front();
    setBoxText(*m_box,
               entry.times == 1 ? entry.message
                                : QStringLiteral("%1\n（共 %2 次）").arg(entry.message).arg(entry.times));
}

} // namespace vortaq

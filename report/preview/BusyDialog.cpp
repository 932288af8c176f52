// SPDX-License-Identifier: MIT
#include "report/preview/BusyDialog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace report {

namespace {

constexpr qint64 Patience = 1000;
constexpr qint64 BetweenLooks = 40;

} // namespace

Elapsed elapsedFromNow()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

BusyDialog::BusyDialog(QWidget *parent, const QString &what, Elapsed elapsed)
    : QDialog(parent)
    , m_elapsed(std::move(elapsed))
    , m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("dlgBusy"));
    setWindowTitle(QStringLiteral("请稍候"));
    setModal(true);
    m_bar->setObjectName(QStringLiteral("barBusy"));
    m_bar->setRange(0, 1000);
    m_bar->setFormat(QStringLiteral("%p%"));
    auto *stop = new QPushButton(QStringLiteral("取消(&C)"), this);
    stop->setObjectName(QStringLiteral("btnStop"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(what, this));
    layout->addWidget(m_bar);
    layout->addWidget(stop, 0, Qt::AlignRight);
    connect(stop, &QPushButton::clicked, this, &QDialog::reject);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyDialog::~BusyDialog()
{
    QGuiApplication::restoreOverrideCursor();
}

bool BusyDialog::advance(int permille)
{
    const qint64 now = m_elapsed();
    if (now < Patience || now - m_lastLook < BetweenLooks)
        return !m_stopped;
    m_lastLook = now;
    m_bar->setValue(permille);
    if (!isVisible() && !m_stopped) {
        show();
        QGuiApplication::changeOverrideCursor(Qt::BusyCursor);
    }
    QCoreApplication::processEvents();
    return !m_stopped;
}

void BusyDialog::reject()
{
    m_stopped = true;
    QDialog::reject();
}

} // namespace report

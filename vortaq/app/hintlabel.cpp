// SPDX-License-Identifier: MIT
// Places the hint and takes it away again.
#include "vortaq/app/hintlabel.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>

#include <algorithm>

namespace vortaq {

namespace {

constexpr int ShownForMilliseconds = 3000;

} // namespace

HintLabel::HintLabel(QWidget *window)
    : QLabel(window)
{
    setObjectName(QStringLiteral("hintLabel"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(0x2E, 0x7D, 0x4F));
    colours.setColor(QPalette::WindowText, Qt::white);
    setPalette(colours);
    QFont heavy = font();
    heavy.setBold(true);
    setFont(heavy);
    setWordWrap(true);
    hide();
    window->installEventFilter(this);
    m_timer.setSingleShot(true);
    m_timer.setInterval(ShownForMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &QWidget::hide);
}

void HintLabel::display(const QString &message)
{
    setText(message);
    place();
    show();
    raise();
    m_timer.start();
}

bool HintLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QLabel::eventFilter(watched, event);
}

void HintLabel::place()
{
    const QRect row = strip(fontMetrics().horizontalAdvance(text()) + 2 * fontMetrics().height());
    setGeometry(QRect(row.topLeft(), QSize(row.width(), std::max(row.height(), heightForWidth(row.width())))));
}

QRect HintLabel::strip(int needed) const
{
    const auto *window = qobject_cast<const QMainWindow *>(parentWidget());
    const auto *menus = window ? qobject_cast<const QMenuBar *>(window->menuWidget()) : nullptr;
    if (!menus || menus->actions().isEmpty())
        return {0, 0, parentWidget()->width(), fontMetrics().height() * 3 / 2};
    QRect row = menus->geometry();
    const int left = menus->actionGeometry(menus->actions().constLast()).right() + fontMetrics().height();
    if (row.width() - left >= needed)
        row.setLeft(row.left() + left);
    return row;
}

} // namespace vortaq

// SPDX-License-Identifier: MIT
// Places the hint and takes it away again.
#include "vortaq/app/hintlabel.h"

#include <QEvent>

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
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    setFont(large);
    setMargin(fontMetrics().height() * 2 / 3);
    setMinimumWidth(fontMetrics().height() * 14);
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
    adjustSize();
    move((parentWidget()->width() - width()) / 2, parentWidget()->height() / 12);
}

} // namespace vortaq

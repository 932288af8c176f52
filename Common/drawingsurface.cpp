// SPDX-License-Identifier: MIT
// A surface over a control, to be drawn on at any time.
#include "Common/drawingsurface.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace common {

DrawingSurface::DrawingSurface(QWidget &control)
    : QWidget(&control)
    , m_control(control)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    control.installEventFilter(this);
    follow();
    show();
    raise();
}

void DrawingSurface::clear()
{
    m_image.fill(Qt::transparent);
    update();
}

bool DrawingSurface::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_control && event->type() == QEvent::Resize)
        follow();
    return QWidget::eventFilter(watched, event);
}

void DrawingSurface::paintEvent(QPaintEvent *)
{
    QPainter(this).drawImage(0, 0, m_image);
}

void DrawingSurface::follow()
{
    setGeometry(m_control.rect());
    QImage larger(m_control.size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    larger.setDevicePixelRatio(devicePixelRatioF());
    larger.fill(Qt::transparent);
    if (!m_image.isNull() && !larger.isNull())
        QPainter(&larger).drawImage(0, 0, m_image);
    m_image = std::move(larger);
}

} // namespace common

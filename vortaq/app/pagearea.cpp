// SPDX-License-Identifier: MIT
#include "vortaq/app/pagearea.h"

#include <QStatusTipEvent>

namespace vortaq {

PageArea::PageArea(QWidget *pages, QWidget *parent)
    : QScrollArea(parent)
{
    setObjectName(QStringLiteral("pageArea"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(pages);
}

bool PageArea::event(QEvent *event)
{
    if (event->type() != QEvent::StatusTip)
        return QScrollArea::event(event);
    emit tipOffered(static_cast<QStatusTipEvent *>(event)->tip());
    return true;
}

} // namespace vortaq

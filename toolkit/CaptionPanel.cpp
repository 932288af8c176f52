// SPDX-License-Identifier: MIT
#include "toolkit/CaptionPanel.h"

#include <QEvent>
#include <QLabel>

CaptionPanel::CaptionPanel(QWidget *parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

void CaptionPanel::setCaption(QLabel *label, const QString &caption)
{
    m_label = label;
    m_label->setText(caption);
    updateGeometry();
    centre();
}

QSize CaptionPanel::sizeHint() const
{
    // Wide enough for one Chinese character with air on both sides.
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(QStringLiteral("　")) * 2, metrics.height()};
}

QSize CaptionPanel::minimumSizeHint() const
{
    return sizeHint();
}

void CaptionPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    centre();
}

void CaptionPanel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        centre();
}

void CaptionPanel::centre()
{
    if (m_label == nullptr)
        return;
    m_label->adjustSize();
    m_label->move((width() - m_label->width()) / 2, (height() - m_label->height()) / 2);
}

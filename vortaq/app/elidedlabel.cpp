// SPDX-License-Identifier: MIT
#include "vortaq/app/elidedlabel.h"

#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>

namespace vortaq {

namespace {

constexpr int LeastCharacters = 4;

} // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent)
    : QLabel(parent)
    , m_mode(mode)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), fontMetrics().height() * LeastCharacters), whole.height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    // As rich text it is wrapped; a file's name may look like markup.
    QToolTip::showText(help->globalPos(),
                       shownText() == text() ? QString() : Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal),
                       this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                         foregroundRole());
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), m_mode, contentsRect().width());
}

} // namespace vortaq

// SPDX-License-Identifier: MIT
// A box that shows an amount through a display format.
#include "toolkit/TdxCurrencyEdit.h"

#include "toolkit/datatip.h"
#include "toolkit/readabletext.h"
#include "toolkit/shownamount.h"
#include "values/displayformat.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionFrame>

TdxCurrencyEdit::TdxCurrencyEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    toolkit::keepReadable(*this);
}

void TdxCurrencyEdit::setValue(long double value)
{
    m_value = value;
    showValue();
}

void TdxCurrencyEdit::setValue(const QString &text)
{
    if (text.trimmed().isEmpty())
        clearValue();
    else
        setValue(values::parseAmount(text));
}

void TdxCurrencyEdit::clearValue()
{
    m_value.reset();
    showValue();
}

void TdxCurrencyEdit::setDisplayFormat(const QString &format)
{
    m_displayFormat = format;
    showValue();
}

QString TdxCurrencyEdit::valueText() const
{
    return m_value ? values::formatFloat(QString(), *m_value) : QString();
}

void TdxCurrencyEdit::showValue()
{
    setText(m_value ? values::formatFloat(m_displayFormat, *m_value) : QString());
    setCursorPosition(0); // an amount wider than the box shows its beginning, not its cents
}

QRect TdxCurrencyEdit::textPlace() const
{
    QStyleOptionFrame box;
    initStyleOption(&box);
    constexpr int beside = 2; // what QLineEdit leaves, and the cursor at the end
    constexpr int cursor = 1;
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &box, this) - textMargins();
    return inside.adjusted(beside, 0, -beside - cursor, 0);
}

bool TdxCurrencyEdit::isTooWide() const
{
    return !toolkit::amountFits(text(), textPlace().width(), fontMetrics());
}

void TdxCurrencyEdit::paintEvent(QPaintEvent *event)
{
    if (!isTooWide()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStyleOptionFrame box;
    initStyleOption(&box);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &box, &painter, this);
    const QRect place = textPlace();
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(place, static_cast<int>(alignment()), toolkit::shownAmount(text(), place.width(), fontMetrics()));
}

bool TdxCurrencyEdit::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isTooWide())
        return QLineEdit::event(event);
    toolkit::showDataTip(static_cast<const QHelpEvent *>(event)->globalPos(), text(), this, rect());
    return true;
}

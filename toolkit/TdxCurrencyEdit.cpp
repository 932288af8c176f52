// SPDX-License-Identifier: MIT
// A box that shows an amount through a display format.
#include "toolkit/TdxCurrencyEdit.h"

#include "toolkit/displayformat.h"

TdxCurrencyEdit::TdxCurrencyEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
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
        setValue(toolkit::parseAmount(text));
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
    return m_value ? toolkit::formatFloat(QString(), *m_value) : QString();
}

void TdxCurrencyEdit::showValue()
{
    setText(m_value ? toolkit::formatFloat(m_displayFormat, *m_value) : QString());
    setCursorPosition(0); // an amount wider than the box shows its beginning, not its cents
}

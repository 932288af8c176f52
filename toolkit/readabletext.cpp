// SPDX-License-Identifier: MIT
#include "toolkit/readabletext.h"

#include <QColor>
#include <QEvent>
#include <QLineEdit>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace toolkit {

namespace {

/// Relative luminance of a colour, from 0 (black) to 1 (white).
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const QColor rgb = colour.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

bool isReadable(const QColor &text, const QColor &background)
{
    return contrast(text, background) >= ReadableContrast;
}

class Reader final : public QObject {
public:
    explicit Reader(QLineEdit &box)
        : QObject(&box)
        , m_box(box)
    {
        box.installEventFilter(this);
        strengthen();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange)
            strengthen(); // sends the event again, but then there is nothing left to do
        return QObject::eventFilter(watched, event);
    }

private:
    void strengthen()
    {
        QPalette colours = m_box.palette();
        const QColor background = colours.color(QPalette::Disabled, QPalette::Base);
        if (isReadable(colours.color(QPalette::Disabled, QPalette::Text), background))
            return;
        QColor text = colours.color(QPalette::Active, QPalette::Text);
        if (!isReadable(text, background))
            text = contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black : Qt::white;
        colours.setColor(QPalette::Disabled, QPalette::Text, text);
        m_box.setPalette(colours);
    }

    QLineEdit &m_box;
};

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

void keepReadable(QLineEdit &box)
{
    new Reader(box); // the box owns it
}

} // namespace toolkit

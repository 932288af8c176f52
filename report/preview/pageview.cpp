// SPDX-License-Identifier: MIT
#include "report/preview/pageview.h"

#include "report/document.h"
#include "report/output/paint.h"

#include "toolkit/guard.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace report {

namespace {

constexpr int Border = 12; // around the sheet, at 96 dots an inch
constexpr int LinesPerStep = 20;
constexpr QRgb Desk = 0xFF6B7075;

} // namespace

PageView::PageView(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(QStringLiteral("打印预览"));
}

void PageView::setDocument(const Document *document)
{
    m_document = document;
    setPage(0);
}

void PageView::setPage(int index)
{
    m_index = index;
    refresh();
    verticalScrollBar()->setValue(0);
}

void PageView::refresh()
{
    m_page = m_document->page(m_index);
    updateScrollBars();
    viewport()->update();
}

void PageView::setZoom(Zoom zoom, int percent)
{
    m_zoom = zoom;
    m_percent = percent;
    updateScrollBars();
    viewport()->update();
}

double PageView::scale() const
{
    if (m_document == nullptr)
        return 1;
    const Template &source = m_document->source();
    const int border = 2 * Border * logicalDpiX() / 96;
    // A page that fits the width is as a rule higher than the window, so the scroll bar's place is left free.
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize room = maximumViewportSize();
    const double byWidth = double(std::max(1, room.width() - bar - border)) / source.pageWidth;
    const double byHeight = double(std::max(1, room.height() - border)) / source.pageHeight;
    switch (m_zoom) {
    case Zoom::FitWidth:
        return byWidth;
    case Zoom::FitPage:
        return std::min(byWidth, byHeight);
    case Zoom::Percent:
        break;
    }
    return m_percent / 100.0 * logicalDpiX() / UnitsPerInch;
}

int PageView::percent() const
{
    return qRound(scale() * UnitsPerInch / logicalDpiX() * 100);
}

QSizeF PageView::sheetSize() const
{
    if (m_document == nullptr)
        return {};
    return QSizeF(m_document->source().pageWidth, m_document->source().pageHeight) * scale();
}

void PageView::updateScrollBars()
{
    const int border = 2 * Border * logicalDpiX() / 96;
    const QSizeF sheet = sheetSize();
    const QSize room = viewport()->size();
    const auto set = [](QScrollBar *bar, int length, int visible) {
        bar->setRange(0, std::max(0, length - visible));
        bar->setPageStep(visible);
        bar->setSingleStep(std::max(1, visible / LinesPerStep));
    };
    set(horizontalScrollBar(), qRound(sheet.width()) + border, room.width());
    set(verticalScrollBar(), qRound(sheet.height()) + border, room.height());
}

void PageView::paintEvent(QPaintEvent * /*event*/)
{
    toolkit::guarded([this] {
        QPainter painter(viewport());
        painter.fillRect(viewport()->rect(), QColor::fromRgb(Desk));
        if (m_document == nullptr)
            return;
        const QSizeF sheet = sheetSize();
        const int border = Border * logicalDpiX() / 96;
        const double left = std::max<double>(border, (viewport()->width() - sheet.width()) / 2);
        const double top = std::max<double>(border, (viewport()->height() - sheet.height()) / 2);
        painter.translate(qRound(left) - horizontalScrollBar()->value(), qRound(top) - verticalScrollBar()->value());
        painter.fillRect(QRectF(QPointF(3, 3), sheet), QColor(0, 0, 0, 70));
        painter.fillRect(QRectF(QPointF(), sheet), Qt::white);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(scale(), scale());
        paintPage(painter, m_page, m_document->fonts());
    });
}

void PageView::resizeEvent(QResizeEvent * /*event*/)
{
    updateScrollBars();
}

void PageView::scrollOrTurn(int direction, int step)
{
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + direction * step);
    if (bar->value() == before)
        emit turnPage(direction);
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    const QScrollBar *bar = verticalScrollBar();
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        scrollOrTurn(1, bar->pageStep());
        break;
    case Qt::Key_PageUp:
        scrollOrTurn(-1, bar->pageStep());
        break;
    case Qt::Key_Down:
        scrollOrTurn(1, bar->singleStep());
        break;
    case Qt::Key_Up:
        scrollOrTurn(-1, bar->singleStep());
        break;
    case Qt::Key_Left:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub);
        break;
    case Qt::Key_Right:
        horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd);
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    event->accept();
}

void PageView::wheelEvent(QWheelEvent *event)
{
    const int distance = event->angleDelta().y();
    if (distance == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    const int direction = distance > 0 ? -1 : 1;
    if (event->modifiers().testFlag(Qt::ControlModifier))
        emit zoomStep(-direction);
    else
        scrollOrTurn(direction, 3 * verticalScrollBar()->singleStep());
    event->accept();
}

} // namespace report

// SPDX-License-Identifier: MIT
// Shows one page of a document at a time.
#pragma once

#include "report/layout/page.h"

#include <QAbstractScrollArea>

namespace report {

class Document;

enum class Zoom { FitWidth, FitPage, Percent };

class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit PageView(QWidget *parent = nullptr);

    /// Borrowed; page 0 must be laid out.
    void setDocument(const Document *document);
    /// Counts from 0; shows its upper end.
    void setPage(int index);
    [[nodiscard]] int page() const noexcept { return m_index; }
    /// Takes the page from the document again: the number of pages has become known.
    void refresh();

    void setZoom(Zoom zoom, int percent = 100);
    /// Size on the screen in hundredths of that on paper.
    [[nodiscard]] int percent() const;

signals:
    /// The clerk scrolls past the end (1) or the beginning (-1) of the page.
    void turnPage(int direction);
    /// The clerk turns the wheel with Ctrl.
    void zoomStep(int direction);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    [[nodiscard]] double scale() const; ///< pixels a unit
    [[nodiscard]] QSizeF sheetSize() const; ///< pixels
    void updateScrollBars();
    void scrollOrTurn(int direction, int step);

    const Document *m_document = nullptr;
    Page m_page;
    int m_index = 0;
    Zoom m_zoom = Zoom::FitWidth;
    int m_percent = 100;
};

} // namespace report

// SPDX-License-Identifier: MIT
// A list of patients whose amounts a test chooses.
#pragma once

#include "tests/toolkit/treelistfixture.h"

#include <QImage>
#include <QMouseEvent>

#include <vector>

inline constexpr char Money[] = ",0.00;-,0.00";

class Amounts : public TreeListTest {
protected:
    Amounts()
    {
        setFormat(Money);
        show();
    }

    void setFormat(const char *format)
    {
        static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QString::fromUtf8(format));
    }

    void loadAmounts(const std::vector<const char *> &amounts)
    {
        std::vector<Patient> patients;
        for (const char *amount : amounts)
            patients.push_back({"001", "王秀英", "45岁", amount, "True", "11"});
        load(packetOf(patients));
    }

    [[nodiscard]] int width() const { return list.header()->sectionSize(Fee); }
    /// Whether the column shows a text of its own whole.
    [[nodiscard]] bool hasRoomFor(const char *text) const
    {
        return width() > list.fontMetrics().horizontalAdvance(QString::fromUtf8(text));
    }
    [[nodiscard]] QImage cellPicture(int row) const
    {
        const QRect cell = list.visualRect(at(row, Fee));
        return const_cast<TdxTreeList &>(list).viewport()->grab(cell.adjusted(1, 1, -2, -2)).toImage();
    }
    void dragTo(int wanted)
    {
        QWidget *header = list.header()->viewport();
        const int edge = list.visualRect(at(0, Fee)).right();
        const QPointF place(edge + wanted - width(), 5);
        QTest::mousePress(header, Qt::LeftButton, {}, QPoint(edge, 5));
        QMouseEvent move(QEvent::MouseMove, place, header->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(header, &move);
        QTest::mouseRelease(header, Qt::LeftButton, {}, place.toPoint());
    }
};

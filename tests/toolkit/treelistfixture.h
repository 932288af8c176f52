// SPDX-License-Identifier: MIT
// A small list of patients on the screen, with everything it tells recorded.
#pragma once

#include "automation/errordisplay.h"
#include "tests/toolkit/patients.h"
#include "toolkit/TdxTreeList.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using toolkit::CellStyle;
using toolkit::windowsColour;

/// One pixel of the picture for one of the widget's units, whatever the display scale.
[[nodiscard]] inline QImage pictureOf(QWidget &widget)
{
    QImage image = widget.grab().toImage();
    image.setDevicePixelRatio(1);
    return image.scaled(widget.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

class TreeListTest : public testing::Test {
protected:
    TreeListTest()
    {
        list.setColumns(patientColumns());
        QObject::connect(&list, &TdxTreeList::changeNode, &list, [this](const TdxTreeListNode &node) {
            focusTold.push_back(node ? node.text(Card).toStdString() : "none");
        });
        QObject::connect(&list, &TdxTreeList::toggleClick, &list,
                         [this](const TdxTreeListColumn *column, const QString &state) {
                             toggles.push_back(column->objectName().toStdString() + "=" + state.toStdString());
                         });
        QObject::connect(&list, &TdxTreeList::dblClick, &list, [this] { ++doubleClicks; });
        before = automation::setErrorDisplay([this](const QString &text) { errors.push_back(text.toStdString()); });
        list.resize(900, 300);
    }

    ~TreeListTest() override { automation::setErrorDisplay(before); }

    void load(const DataPacketPtr &packet = packetOf(somePatients))
    {
        list.beginUpdate();
        list.clearNodes();
        list.addRows(packet);
        list.endUpdate();
    }

    void show()
    {
        list.show();
        list.activateWindow();
        list.setFocus();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QModelIndex at(int row, int column) const { return list.model()->index(row, column); }
    [[nodiscard]] QPoint middleOf(int row, int column) const { return list.visualRect(at(row, column)).center(); }

    void click(int row, int column, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(list.viewport(), button, {}, middleOf(row, column));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&list, key, modifiers); }

    /// Texts of one column in the order shown, joined by blanks.
    [[nodiscard]] std::string shown(int column) const
    {
        std::string all;
        for (int row = 0; row < list.count(); ++row)
            all += (row == 0 ? "" : " ") + list.node(row).text(column).trimmed().toStdString();
        return all;
    }

    [[nodiscard]] std::string focus() const
    {
        const TdxTreeListNode node = list.focusedNode();
        return node ? node.text(Card).toStdString() : "none";
    }

    std::vector<std::string> focusTold;
    std::vector<std::string> toggles;
    std::vector<std::string> errors;
    int doubleClicks = 0;
    automation::ErrorDisplay before;
    TdxTreeList list;
};

using Texts = std::vector<std::string>;

// SPDX-License-Identifier: MIT
// Keyboard and mouse: every job can be done with either.
#include "tests/toolkit/treelistfixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

namespace {

class Input : public TreeListTest {
protected:
    Input()
    {
        load();
        show();
    }

    void typeChinese(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&list, &event);
    }

    /// As a mouse does it: the second press comes as a double-click.
    void doubleClick(int row, int column)
    {
        click(row, column);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middleOf(row, column));
        QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(row, column));
    }

    [[nodiscard]] int currentColumn() const { return list.currentIndex().column(); }
    [[nodiscard]] QLineEdit *editor() const { return list.viewport()->findChild<QLineEdit *>(); }
};

class ManyRows : public Input {
protected:
    ManyRows() { load(manyPatients(1000)); }
};

// ---- moving

TEST_F(Input, ArrowsMoveTheFocusAndTellOnce)
{
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Up);
    EXPECT_EQ(focusTold, (Texts{"002", "003", "002"}));
    key(Qt::Key_Up);
    key(Qt::Key_Up); // stays on the first row
    EXPECT_EQ(focusTold, (Texts{"002", "003", "002", "001"}));
}

TEST_F(ManyRows, HomeAndEndGoToTheFirstAndTheLastRow)
{
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
        key(Qt::Key_End, modifiers);
        EXPECT_EQ(focus(), "P999");
        EXPECT_TRUE(list.viewport()->rect().contains(middleOf(999, Card)));
        key(Qt::Key_Home, modifiers);
        EXPECT_EQ(focus(), "P0");
    }
    EXPECT_EQ(currentColumn(), Card);
}

TEST_F(ManyRows, PagesMoveByWhatIsSeen)
{
    key(Qt::Key_PageDown);
    const int page = list.focusedNode().index();
    EXPECT_GT(page, 5);
    EXPECT_LE(page * list.visualRect(at(0, Card)).height(), list.viewport()->height());
    key(Qt::Key_PageDown);
    key(Qt::Key_PageUp);
    EXPECT_NEAR(list.focusedNode().index(), page, 1);
}

TEST_F(Input, LeftAndRightMoveTheCellAndSkipHiddenColumns)
{
    list.column(Fee)->setVisible(false);
    list.setFixedBand(4);
    std::vector<int> columns;
    for (int step = 0; step < 6; ++step) {
        key(Qt::Key_Right);
        columns.push_back(currentColumn());
    }
    EXPECT_EQ(columns, (std::vector<int>{Name, Age, Imported, Remark, Remark, Remark})); // the last one is hidden
    columns.clear();
    for (int step = 0; step < 7; ++step) {
        key(Qt::Key_Left);
        columns.push_back(currentColumn());
    }
    EXPECT_EQ(columns, (std::vector<int>{Imported, Age, Name, Card, Number, Check, Check}));
    EXPECT_EQ(focusTold, Texts{}); // still the same row
}

TEST_F(Input, CellReachedFromTheBandStandsClearOfIt)
{
    list.setFixedBand(3);
    list.resize(420, 300);
    QCoreApplication::processEvents();
    list.horizontalScrollBar()->setValue(list.horizontalScrollBar()->maximum());
    const int bandRight = list.visualRect(at(0, Card)).right();
    key(Qt::Key_Right);
    EXPECT_EQ(currentColumn(), Name);
    EXPECT_GT(list.visualRect(list.currentIndex()).left(), bandRight);
    const int scrolled = list.horizontalScrollBar()->value();
    key(Qt::Key_Left);
    EXPECT_EQ(currentColumn(), Card);
    EXPECT_EQ(list.horizontalScrollBar()->value(), scrolled); // the band was in sight anyway
}

TEST_F(Input, TheCellKeepsItsColumnFromRowToRow)
{
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    EXPECT_EQ(currentColumn(), Name);
    load();
    EXPECT_EQ(currentColumn(), Name);
}

// ---- space and enter

TEST_F(Input, SpaceTogglesTheFirstEditableCheckColumn)
{
    key(Qt::Key_Space);
    EXPECT_EQ(toggles, Texts{"listCheck=1"});
    EXPECT_EQ(list.node(0).text(Check), QString()); // storing is the handler's decision
    list.node(0).setValue(Check, QStringLiteral("1"));
    key(Qt::Key_Space);
    list.node(0).setValue(Check, 2);
    key(Qt::Key_Space);
    EXPECT_EQ(toggles, (Texts{"listCheck=1", "listCheck=2", "listCheck=1"}));
}

TEST_F(Input, HeldSpaceTogglesOnce)
{
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "));
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QApplication::sendEvent(&list, &first);
    QApplication::sendEvent(&list, &again);
    EXPECT_EQ(toggles, Texts{"listCheck=1"});
}

TEST_F(Input, SpaceNeedsARowAndAColumn)
{
    list.column(Check)->setVisible(false);
    key(Qt::Key_Space);
    list.column(Check)->setVisible(true);
    list.clearNodes();
    key(Qt::Key_Space);
    EXPECT_EQ(toggles, Texts{});
}

TEST_F(Input, EnterIsADoubleClickOnTheFocusedRow)
{
    key(Qt::Key_Return);
    key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(doubleClicks, 2);
    list.clearNodes();
    key(Qt::Key_Return);
    EXPECT_EQ(doubleClicks, 2);
}

TEST_F(Input, HandlersErrorsAreDisplayed)
{
    QObject::connect(&list, &TdxTreeList::dblClick, &list, [] { throw std::runtime_error("明细打不开"); });
    QObject::connect(&list, &TdxTreeList::toggleClick, &list, [] { throw std::runtime_error("合计不对"); });
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    EXPECT_EQ(errors, (Texts{"明细打不开", "合计不对"}));
}

// ---- typing

TEST_F(Input, TypingFindsARowByTheCurrentColumn)
{
    QTest::keyClicks(&list, QStringLiteral("004"));
    EXPECT_EQ(focus(), "004");
    EXPECT_EQ(focusTold.back(), "004");
}

TEST_F(Input, ChineseTypingFindsARow)
{
    key(Qt::Key_Right);
    EXPECT_TRUE(list.testAttribute(Qt::WA_InputMethodEnabled));
    typeChinese(QStringLiteral("李"));
    EXPECT_EQ(focus(), "004");
    typeChinese(QStringLiteral("丽"));
    EXPECT_EQ(focus(), "005");
}

TEST_F(Input, CopiesTheCellAsShown)
{
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("001"));
    static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QStringLiteral(",0.00"));
    list.setCurrentIndex(at(0, Fee));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1,234.50"));
}

TEST_F(Input, EditsOnlyEditableCells)
{
    key(Qt::Key_F2);
    EXPECT_EQ(editor(), nullptr);
    list.setCurrentIndex(at(1, Remark));
    key(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), QStringLiteral("12.5"));
    QTest::keyClick(editor(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(list.node(1).value(Remark), QVariant(QStringLiteral("12.5")));
    EXPECT_EQ(doubleClicks, 0);
}

TEST_F(Input, TypingOpensTheEditorOfAnEditableCell)
{
    list.setCurrentIndex(at(0, Remark));
    QTest::keyClick(&list, Qt::Key_7);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("7"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    EXPECT_EQ(list.node(0).text(Remark), QString());
}

TEST_F(Input, AReloadWhileEditingIsHarmless)
{
    list.setCurrentIndex(at(1, Remark));
    key(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    load();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(list.node(1).text(Remark), QString());
}

// ---- mouse

TEST_F(Input, AClickFocusesTheRow)
{
    click(3, Age);
    EXPECT_EQ(focusTold, Texts{"004"});
    EXPECT_EQ(currentColumn(), Age);
    EXPECT_EQ(toggles, Texts{});
}

TEST_F(Input, AClickOnACheckCellFirstFocusesThenToggles)
{
    Texts told;
    QObject::connect(&list, &TdxTreeList::changeNode, &list, [&](const TdxTreeListNode &) { told.push_back("focus"); });
    QObject::connect(&list, &TdxTreeList::toggleClick, &list,
                     [&] { told.push_back("toggle " + list.focusedNode().text(Card).toStdString()); });
    click(2, Check);
    EXPECT_EQ(told, (Texts{"focus", "toggle 003"}));
    EXPECT_EQ(toggles, Texts{"listCheck=1"});
}

TEST_F(Input, AReadOnlyCheckCellOnlyTakesTheFocus)
{
    click(2, Imported);
    EXPECT_EQ(focusTold, Texts{"003"});
    EXPECT_EQ(toggles, Texts{});
}

TEST_F(Input, PressingAndLeavingTheCheckCellTogglesNothing)
{
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middleOf(1, Check));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(1, Name));
    EXPECT_EQ(toggles, Texts{});
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middleOf(1, Name));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(1, Check));
    EXPECT_EQ(toggles, Texts{});
}

TEST_F(Input, DraggingDoesNotWanderOverRows)
{
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middleOf(0, Name));
    for (int row = 1; row < 5; ++row) {
        const QPoint place = middleOf(row, Name);
        QMouseEvent move(QEvent::MouseMove, place, list.viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(list.viewport(), &move);
    }
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, middleOf(4, Name));
    EXPECT_EQ(focusTold, Texts{});
    EXPECT_EQ(focus(), "001");
}

TEST_F(Input, DoubleClickTellsOnlyOnARow)
{
    doubleClick(1, Name);
    EXPECT_EQ(doubleClicks, 1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, QPoint(200, list.viewport()->height() - 3));
    EXPECT_EQ(doubleClicks, 1);
    doubleClick(1, Imported);
    EXPECT_EQ(doubleClicks, 2);
}

TEST_F(Input, DoubleClickOnATickIsTwoToggles)
{
    doubleClick(1, Check);
    EXPECT_EQ(doubleClicks, 0);
    EXPECT_EQ(toggles, (Texts{"listCheck=1", "listCheck=1"})); // nobody stored the first
}

TEST_F(Input, DoubleClickOnAnEditableCellEdits)
{
    doubleClick(1, Remark);
    EXPECT_EQ(doubleClicks, 0);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(Input, BandCellsAreHitWhereTheyAreSeen)
{
    list.setFixedBand(3);
    list.resize(420, 300);
    QCoreApplication::processEvents();
    const int scrolled = list.horizontalScrollBar()->maximum();
    ASSERT_GT(scrolled, 50);
    list.horizontalScrollBar()->setValue(scrolled);
    EXPECT_EQ(list.visualRect(at(2, Check)).left(), 0);
    click(2, Check);
    EXPECT_EQ(toggles, Texts{"listCheck=1"});
    EXPECT_EQ(focus(), "003");
    click(1, Card);
    EXPECT_EQ(list.currentIndex(), at(1, Card));
    EXPECT_EQ(list.horizontalScrollBar()->value(), scrolled);
    const int bandRight = list.visualRect(at(0, Card)).right();
    EXPECT_EQ(list.indexAt(QPoint(bandRight, 5)).column(), Card);
    EXPECT_NE(list.indexAt(QPoint(bandRight + 1, 5)).column(), Card);
    EXPECT_GT(list.indexAt(QPoint(bandRight + 1, 5)).column(), Card);
}

// ---- context menu

class ContextMenu : public Input {
protected:
    ContextMenu() { menu.addAction(QStringLiteral("全部选定")); }

    void ask(QContextMenuEvent::Reason reason, const QPoint &place)
    {
        QContextMenuEvent event(reason, place, list.viewport()->mapToGlobal(place));
        QWidget *receiver = reason == QContextMenuEvent::Mouse ? list.viewport() : static_cast<QWidget *>(&list);
        QApplication::sendEvent(receiver, &event);
    }

    QMenu menu;
};

TEST_F(ContextMenu, IsShownOverTheRowItFocuses)
{
    list.setPopupMenu(&menu);
    EXPECT_EQ(list.popupMenu(), &menu);
    ask(QContextMenuEvent::Mouse, middleOf(2, Name));
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(focusTold, Texts{"003"});
}

TEST_F(ContextMenu, IsChosenByTheRow)
{
    QObject::connect(&list, &TdxTreeList::changeNode, &list,
                     [this](const TdxTreeListNode &node) { list.setPopupMenu(node.index() == 2 ? &menu : nullptr); });
    ask(QContextMenuEvent::Mouse, middleOf(1, Name));
    EXPECT_FALSE(menu.isVisible());
    ask(QContextMenuEvent::Mouse, middleOf(2, Name));
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(ContextMenu, ComesByKeyboardAtTheFocusedRow)
{
    list.setPopupMenu(&menu);
    list.setFocusedNode(list.node(3));
    ask(QContextMenuEvent::Keyboard, QPoint());
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos().y(), list.viewport()->mapToGlobal(list.visualRect(at(3, Card)).bottomLeft()).y());
    EXPECT_EQ(focus(), "004");
}

TEST_F(ContextMenu, DisabledMenuStaysAway)
{
    list.setPopupMenu(&menu);
    menu.setEnabled(false);
    ask(QContextMenuEvent::Mouse, middleOf(2, Name));
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(focus(), "003");
}

TEST_F(ContextMenu, OutlivesItsMenu)
{
    {
        QMenu shortLived;
        list.setPopupMenu(&shortLived);
    }
    EXPECT_EQ(list.popupMenu(), nullptr);
    ask(QContextMenuEvent::Mouse, middleOf(2, Name));
    EXPECT_EQ(focus(), "003");
}

} // namespace

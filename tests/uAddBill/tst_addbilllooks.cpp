// SPDX-License-Identifier: MIT
// How the dialog "添加制单" looks: its frame and place, labels, colours, the band that stays.
#include "host/clientdataset.h"
#include "tests/support/gridreading.h"
#include "tests/support/hostcolours.h"
#include "tests/support/paintedcontrast.h"
#include "tests/uAddBill/addbill.h"

#include <QLabel>
#include <QScreen>
#include <QScrollBar>

namespace {

using AddBillLooksTest = AddBillTest;

int left(TdxTreeList &list, const char *column)
{
    return list.visualRect(list.model()->index(0, list.columnByName(QString::fromUtf8(column))->position())).left();
}

} // namespace

TEST_F(AddBillLooksTest, hasAFixedBorderAndOnlyTheSystemMenu)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("添加制单"));
        EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
        EXPECT_EQ(dialog.size(), dialog.minimumSize());
        const Qt::WindowFlags flags = dialog.windowFlags();
        EXPECT_TRUE(flags.testFlag(Qt::WindowSystemMenuHint));
        EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
        EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
        EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
        EXPECT_FALSE(flags.testFlag(Qt::WindowContextHelpButtonHint));
    });
}

TEST_F(AddBillLooksTest, standsInTheMiddleOfTheScreenWhereverTheFormStands)
{
    m_desk.emplace();
    QWidget &form = m_desk->open();
    form.resize(500, 400);
    const QRect screen = form.screen()->availableGeometry();
    for (const QPoint place : {screen.topLeft(), screen.bottomRight() - QPoint(520, 420)}) {
        form.move(place);
        const ModalVisit visit(QStringLiteral("frmAddBill"), [&screen](QWidget &dialog) {
            const QPoint away = dialog.frameGeometry().center() - screen.center();
            EXPECT_LE(away.manhattanLength(), 2) << away.x() << ' ' << away.y(); // halves are rounded
        });
        TfrmAddBill({QStringLiteral("42990102"), QStringLiteral("3")}, &form).ShowModal();
    }
}

TEST_F(AddBillLooksTest, fitsTheScreenHoweverLargeTheFormIs)
{
    m_desk.emplace();
    QWidget &form = m_desk->open();
    const QRect screen = form.screen()->availableGeometry();
    for (const double share : {0.3, 1.0, 2.0}) {
        form.resize(QSizeF(screen.size() * share).toSize());
        const ModalVisit visit(QStringLiteral("frmAddBill"), [&screen](QWidget &dialog) {
            EXPECT_TRUE(screen.contains(dialog.frameGeometry())) << dialog.width() << 'x' << dialog.height();
            EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
            for (const char *name : {"edtUpNum", "dxCEUpFreeFee", "btnSave", "btnCancel"})
                EXPECT_TRUE(hands::reach(hands::find<QWidget>(dialog, name))) << name;
            tick(dialog, {0});
            EXPECT_EQ(hands::find<QLineEdit>(dialog, "edtUpNum").text(), QStringLiteral("1"));
        });
        TfrmAddBill({QStringLiteral("42990102"), QStringLiteral("3")}, &form).ShowModal();
    }
}

TEST_F(AddBillLooksTest, totalsBoxesHaveTheirLabelsAndTakeNoTyping)
{
    inDialog([](QWidget &dialog) {
        QStringList labels;
        for (const char *name : {"edtUpNum", "dxCEUpTotal", "dxCEUpCanFee", "dxCEUpFreeFee"}) {
            const auto &box = hands::find<QLineEdit>(dialog, name);
            EXPECT_FALSE(box.isEnabled()) << name;
            for (const QLabel *label : dialog.findChildren<QLabel *>()) {
                if (label->buddy() == &box)
                    labels.append(label->text());
            }
        }
        EXPECT_EQ(labels.join(u' '), QStringLiteral("添加总人次： 添加总费用： 添加可报销费用： 添加报销费用："));
    });
}

TEST_F(AddBillLooksTest, totalsHaveTheHostsMoneyFormatAsTheListHas)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("DigitalFormat"), QStringLiteral("0.0元")}};
    inDialog(
        [](QWidget &dialog) {
            tick(dialog, {0});
            const QString shown = grids::shownTexts(grid(dialog), "dxTLUpTotalFee").first();
            EXPECT_TRUE(shown.endsWith(u'元'));
            EXPECT_EQ(totals(dialog).split(u'|')[1], shown);
        },
        options);
}

TEST_F(AddBillLooksTest, totalsCanBeReadAlthoughTheyAreDisabled)
{
    inDialog([](QWidget &dialog) {
        tick(dialog, {0});
        for (const char *name : {"edtUpNum", "dxCEUpTotal", "dxCEUpCanFee", "dxCEUpFreeFee"})
            EXPECT_GE(paintedContrast(hands::find<QLineEdit>(dialog, name)), toolkit::ReadableContrast) << name;
    });
}

TEST_F(AddBillLooksTest, oneDataSetHoldsTheCandidates)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(hands::find<TClientDataSet>(dialog, "CDSAdd").recordCount(), grid(dialog).count());
        EXPECT_EQ(grid(dialog).count(), 4);
    });
}

TEST_F(AddBillLooksTest, theListHasTheHostsBackground)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("Color-5"), QString::number(0x00C0E0F0)}};
    inDialog(
        [](QWidget &dialog) {
            EXPECT_EQ(grid(dialog).color(), 0x00C0E0F0U);
            const QPoint belowTheRows(5, grid(dialog).viewport()->height() - 5);
            EXPECT_EQ(grid(dialog).viewport()->grab().toImage().pixelColor(belowTheRows).name(),
                      QStringLiteral("#f0e0c0"));
        },
        options);
}

TEST_F(AddBillLooksTest, textIsLightInTheFocusedRowOnly)
{
    inDialog([](QWidget &dialog) {
        hands::clickCell(grid(dialog), 2, "dxTLUpSex");
        for (int row = 0; row < 4; ++row) {
            EXPECT_EQ(grids::lightestSpot(grid(dialog), row, "dxTLUpPatientName") > 220
                          && grids::darkestSpot(grid(dialog), row, "dxTLUpPatientName") >= 60,
                      row == 2)
                << row;
        }
    });
}

TEST_F(AddBillLooksTest, coloursAreAskedAnewForEachPainting)
{
    inDialog([](QWidget &dialog) {
        const QString window = dialog.palette().color(QPalette::Base).name();
        EXPECT_EQ(grids::backgrounds(grid(dialog), "dxTLUpPatientName").join(u' '),
                  QStringLiteral("#336699 #eef4f7 %1 #eef4f7").arg(window));
        changeColours(
            {{QStringLiteral("Color-1"), QStringLiteral("255")}, {QStringLiteral("Color-2"), QStringLiteral("65280")}});
        EXPECT_EQ(grids::backgrounds(grid(dialog), "dxTLUpPatientName").join(u' '),
                  QStringLiteral("#ff0000 #00ff00 %1 #00ff00").arg(window));
    });
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(AddBillLooksTest, theFirstBandStaysWhenTheOthersScroll)
{
    inDialog([](QWidget &dialog) {
        TdxTreeList &list = grid(dialog);
        const int check = left(list, "dxTLUpCheck");
        const int number = left(list, "dxTLUpID");
        const int fee = left(list, "dxTLUpTotalFee");
        ASSERT_GT(list.horizontalScrollBar()->maximum(), 50);
        list.horizontalScrollBar()->setValue(50);
        EXPECT_EQ(left(list, "dxTLUpCheck"), check);
        EXPECT_EQ(left(list, "dxTLUpID"), number);
        EXPECT_EQ(left(list, "dxTLUpTotalFee"), fee - 50);
    });
}

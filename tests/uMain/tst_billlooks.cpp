// SPDX-License-Identifier: MIT
// How the pages with bills look: names, captions, totals boxes, colours, the band that stays.
#include "host/clientdataset.h"
#include "tests/support/gridreading.h"
#include "tests/support/paintedcontrast.h"
#include "tests/uMain/billpages.h"
#include "toolkit/TdxCurrencyEdit.h"
#include "uMain/TfrmMain.h"
#include "vortaq/app/appearance.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

namespace {

class BillLooksTest : public BillPageTest {
protected:
    void openBill()
    {
        Desk::Options options;
        options.parameters = {{QStringLiteral("Color-5"), QString::number(ListColour)}};
        open(options);
        choose(Two);
    }
    [[nodiscard]] QByteArray column(const char *suffix) const { return QByteArray(m_page->grid) + suffix; }
    [[nodiscard]] QStringList rowColours() const
    {
        return grids::backgrounds(grid(), column("PatientName").constData());
    }
    [[nodiscard]] QString labelOf(const char *box) const
    {
        QStringList texts;
        for (const QLabel *label : hands::find<QWidget>(form(), m_page->page).findChildren<QLabel *>()) {
            if (label->buddy() == &hands::find<QWidget>(form(), box))
                texts.append(label->text());
        }
        return texts.join(QLatin1Char('|'));
    }
    /// Colour at the end of a tree's row, behind its text.
    [[nodiscard]] QString nodeColour(const QModelIndex &index) const
    {
        const QRect row = tree().visualRect(index);
        const QImage picture = tree().viewport()->grab(row).toImage();
        return picture.pixelColor(picture.width() - 3, picture.height() / 2).name();
    }
    [[nodiscard]] int left(const char *suffix) const
    {
        const int position = grid().columnByName(QString::fromUtf8(column(suffix)))->position();
        return grid().visualRect(grid().model()->index(0, position)).left();
    }

    static constexpr toolkit::WindowsColour ListColour = 0x00C0E0F0; // #f0e0c0
};

const QString FocusedColour = QStringLiteral("#336699");
const QString OddColour = QStringLiteral("#eef4f7");
const QString TreeColour = QStringLiteral("#f0e0c0");

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, BillLooksTest, testing::Values(&Reported, &Returned, &History), pageName);

TEST_P(BillLooksTest, listsHaveTheHostsBackground)
{
    openBill();
    EXPECT_EQ(tree().color(), ListColour);
    EXPECT_EQ(grid().color(), ListColour);
    const QPoint belowTheRows(5, grid().viewport()->height() - 5);
    EXPECT_EQ(grid().viewport()->grab().toImage().pixelColor(belowTheRows).name(), TreeColour);
}

TEST_P(BillLooksTest, recordsAreColouredInTurnAndTheFocusedOneApart)
{
    openBill();
    const QString window = form().palette().color(QPalette::Base).name();
    EXPECT_EQ(rowColours(), QStringList({FocusedColour, OddColour}));
    hands::clickCell(grid(), 1, column("Sex").constData());
    EXPECT_EQ(rowColours(), QStringList({window, FocusedColour}));
}

TEST_P(BillLooksTest, textIsLightInTheFocusedRowOnly)
{
    openBill();
    const QByteArray name = column("PatientName");
    const auto isLight = [&](int row) { return grids::lightestSpot(grid(), row, name.constData()) > 220; };
    const auto isDark = [&](int row) { return grids::darkestSpot(grid(), row, name.constData()) < 60; };
    EXPECT_TRUE(isLight(0)) << "of the window's colour";
    EXPECT_FALSE(isDark(0));
    EXPECT_TRUE(isDark(1));
    hands::clickCell(grid(), 1, column("Sex").constData());
    EXPECT_TRUE(isLight(1));
    EXPECT_FALSE(isDark(1));
    EXPECT_TRUE(isDark(0));
}

TEST_P(BillLooksTest, treesColourTheFocusedNodeOnly)
{
    openBill();
    const QModelIndex group = tree().model()->index(0, 0);
    const auto colours = [&] {
        QStringList names(nodeColour(group));
        for (int row = 0; row < tree().topNode().childCount(); ++row)
            names.append(nodeColour(tree().model()->index(row, 0, group)));
        return names;
    };
    EXPECT_EQ(colours(), QStringList({TreeColour, FocusedColour, TreeColour, TreeColour}));
    hands::clickNode(tree(), 0);
    EXPECT_EQ(colours(), QStringList({FocusedColour, TreeColour, TreeColour, TreeColour}));
}

TEST_P(BillLooksTest, rowNumbersAreDrawnWhereTheRowsStand)
{
    openBill();
    const QStringList places = {QStringLiteral("1"), QStringLiteral("2")};
    EXPECT_EQ(grids::shownTexts(grid(), column("ID").constData()), places);
    grid().header()->setSortIndicator(grid().columnByName(QString::fromUtf8(column("TotalFee")))->position(),
                                      Qt::AscendingOrder);
    EXPECT_EQ(hands::columnTexts(grid(), column("CoopMedCode").constData()).first(), QStringLiteral("0102"));
    EXPECT_EQ(grids::shownTexts(grid(), column("ID").constData()), places);
    EXPECT_EQ(hands::columnTexts(grid(), column("ID").constData()), QStringList(2, QString())) << "nothing is stored";
}

TEST_P(BillLooksTest, theFirstBandStaysWhenTheOthersScroll)
{
    openBill();
    const int number = left("ID");
    const int card = left("CoopMedCode");
    const int fee = left("TotalFee");
    QScrollBar &bar = *grid().horizontalScrollBar();
    ASSERT_GT(bar.maximum(), 50);
    bar.setValue(50);
    EXPECT_EQ(left("ID"), number);
    EXPECT_EQ(left("CoopMedCode"), card);
    EXPECT_EQ(left("TotalFee"), fee - 50);
}

TEST_P(BillLooksTest, treesHaveTheirCaptionAboveThem)
{
    open();
    QStringList above;
    for (const QLabel *label : tree().parentWidget()->findChildren<QLabel *>(Qt::FindDirectChildrenOnly)) {
        if (label->geometry().bottom() <= tree().geometry().top())
            above.append(label->text());
    }
    EXPECT_EQ(above, QStringList({QStringLiteral("医疗服务单位")}));
    EXPECT_TRUE(tree().isHeaderHidden());
}

TEST_P(BillLooksTest, totalsBoxesHaveTheirLabels)
{
    open();
    QStringList labels;
    for (const char *box : {m_page->count, m_page->totalFee, m_page->canFreeFee})
        labels.append(labelOf(box));
    if (m_page == &History) {
        labels += {labelOf("dxCEOldOne"), labelOf("dxCEOldTwo")};
        EXPECT_EQ(labels.join(u' '), QStringLiteral("总人次 总费用 可报销费用 一审费用 二审费用"));
    } else {
        EXPECT_EQ(labels.join(u' '), QStringLiteral("上报总人次 上报总费用 上报可报销费用")) << "on both pages";
    }
}

TEST_P(BillLooksTest, totalsBoxesTakeNoTyping)
{
    open();
    std::vector<const char *> boxes = {m_page->count, m_page->totalFee, m_page->canFreeFee};
    if (m_page == &History)
        boxes.insert(boxes.end(), {"dxCEOldOne", "dxCEOldTwo"});
    for (const char *name : boxes) {
        const auto &box = hands::find<QLineEdit>(form(), name);
        EXPECT_TRUE(box.isReadOnly()) << name;
        EXPECT_EQ(box.isEnabled(), m_page == &History) << name;
    }
}

TEST_P(BillLooksTest, totalsCanBeReadInEveryPalette)
{
    openBill();
    const QPalette before = QApplication::palette();
    const QFont font = QApplication::font();
    QPalette dark(QColor(0x31, 0x36, 0x3B));
    dark.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    dark.setColor(QPalette::Disabled, QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(0x65, 0x6A, 0x6D));
    const auto dressed = [](const QPalette &colours) { return [colours] { QApplication::setPalette(colours); }; };
    const std::vector<std::pair<const char *, std::function<void()>>> looks = {
        {"plain", dressed(before)}, {"host", [] { vortaq::dress(*qApp); }}, {"dark", dressed(dark)}};
    for (const auto &[look, dress] : looks) {
        dress();
        QCoreApplication::processEvents();
        for (const char *name : {m_page->count, m_page->totalFee, m_page->canFreeFee}) {
            auto &box = hands::find<QLineEdit>(form(), name);
            const QPalette &colours = box.palette();
            EXPECT_GE(toolkit::contrast(colours.color(QPalette::Text), colours.color(QPalette::Base)),
                      toolkit::ReadableContrast)
                << look << ' ' << name;
            EXPECT_GE(paintedContrast(box), toolkit::ReadableContrast) << look << ' ' << name;
        }
    }
    QApplication::setPalette(before);
    QApplication::setFont(font);
}

TEST_P(BillLooksTest, everyBillsAmountsAreSeenWhole)
{
    open();
    m_desk->sqlite(
        "update o_CbZyBxDj set TotalFee=123456789012.34,CanFreeFee=-23456789012.34 where PatientName='吴芳'");
    choose(Single);
    choose(Two);
    for (const char *suffix : {"TotalFee", "CanFreeFee"}) {
        const QString shown = grids::shownTexts(grid(), column(suffix).constData()).at(1);
        EXPECT_TRUE(shown.endsWith(QStringLiteral("23,456,789,012.34")));
        const int position = grid().columnByName(QString::fromUtf8(column(suffix)))->position();
        EXPECT_GT(grid().columnWidth(position), grid().fontMetrics().horizontalAdvance(shown)) << suffix;
        EXPECT_EQ(grid().column(position)->alignment(), Qt::AlignRight);
    }
}

TEST_P(BillLooksTest, onceTheFormIsShownTheTitleReadsFromTopToBottom)
{
    const char *title = m_page == &History ? "LbOld" : m_page == &Returned ? "LbBack" : "LbUpBill";
    const TfrmMain fresh;
    EXPECT_EQ(hands::find<QLabel>(fresh, title).text(), QStringLiteral("LbUpBill")) << "as it was designed";
    open();
    EXPECT_EQ(hands::find<QLabel>(form(), title).text(),
              QStringLiteral("住\r\n \r\n院\r\n \r\n报\r\n \r\n销\r\n \r\n登\r\n \r\n记\r\n \r\n表"));
}

TEST_P(BillLooksTest, oneDataSetHoldsTheBillsAndThenTheRecords)
{
    open();
    const char *name = m_page == &History ? "CDSOld" : m_page == &Returned ? "CDSBack" : "CDSUpBill";
    const auto &rows = hands::find<TClientDataSet>(form(), name);
    EXPECT_EQ(rows.recordCount(), 3);
    choose(Single);
    EXPECT_EQ(rows.recordCount(), 1);
    EXPECT_NE(rows.packet()->columnIndex(QStringLiteral("CoopMedCode")), -1);
}

TEST(BillLooks, theReportedPagesTotalsStandOnTheirPanel)
{
    Desk desk;
    const auto &panel = hands::find<QWidget>(desk.open(), "PnlCount");
    for (const char *name : {"edtUpBillNum", "dxCEUpBillTotal", "dxCEUpBillFee"})
        EXPECT_NE(panel.findChild<QLineEdit *>(QString::fromUtf8(name)), nullptr) << name;
    EXPECT_EQ(panel.findChildren<QLineEdit *>().size(), 3);
}

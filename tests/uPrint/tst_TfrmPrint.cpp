// SPDX-License-Identifier: MIT
// The dialog "打印费用清单".
#include "uPrint/TfrmPrint.h"

#include "Common/executablefolder.h"
#include "automation/errordisplay.h"
#include "tests/print/notedpapers.h"
#include "tests/print/printhost.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/messageboxes.h"

#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// %1 is the letter of the tables.
QString header(const char *letter)
{
    return QStringLiteral(" select HospitalName,CoopMedCode,PatientName,Sex,cast(Age as varchar(100))+AgeUnit as Age, "
                          "PatientNo,HouseHolder,convert(varchar(10),InDate,126) as InDate,InHosCount,DoctorName, "
                          "(select Address from p_CbNhGrXx where %1_CbZyBxDj.CoopMedCode=p_CbNhGrXx.CoopMedCode and "
                          "p_CbNhGrXx.isHouseHolder='1') as Address  from %1_CbZyBxDj  where OrgCode='4201' and "
                          "CoopMedCode='00''12'   and IDNo=1 and DiagNo=3")
        .arg(text(letter));
}

QString items(const char *letter, const char *begin = "2026-02-20", const char *end = "2026-03-01")
{
    return QStringLiteral(
               " select a.ItemName,b.Gg,a.Unit,a.Num,a.Price,a.Fee,convert(varchar(10),a.YyDate,126) as YyDate, (case "
               "a.IfPass when '1' then '是' when '2' then '否' end) as IfPass  from %1_CbZyBxDjZb a,p_BxXm b  where "
               "a.ItemCode=b.ItemCode    and OrgCode='4201' and CoopMedCode='00''12'   and IDNo=1 and DiagNo=3   and "
               "convert(varchar(10),YyDate,126) between '%2' and '%3' order by a.YyDate,a.FeeNo ")
        .arg(text(letter), text(begin), text(end));
}

const std::vector<toolkit::ColumnDefinition> Columns = {
    {.name = "dxTLAnyInDate"},      {.name = "dxTLAnyOutDate"}, {.name = "dxTLAnyOrgCode"},
    {.name = "dxTLAnyCoopMedCode"}, {.name = "dxTLAnyIDNo"},    {.name = "dxTLAnyDiagNo"},
};

/// Sets the environment's locale for one test.
class LocaleName {
public:
    explicit LocaleName(const char *name)
        : m_before(qgetenv("LC_ALL"))
    {
        qputenv("LC_ALL", name);
    }
    ~LocaleName() { qputenv("LC_ALL", m_before); }
    Q_DISABLE_COPY(LocaleName)

private:
    QByteArray m_before;
};

class FeeListTest : public testing::Test {
protected:
    FeeListTest()
    {
        common::setExecutableFolder(m_folder.path());
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("Module")));
        lay("费用清单.rmf", "每日 [PatientName] [UserName]", "[ItemName]");
        lay("费用清单(总).rmf", "总 [PatientName] [USERNAME] [username] [Page]", "[ItemName]");
        automation::setErrorDisplay([this](const QString &message) { m_errors.append(message); });
        m_grid.setObjectName(QStringLiteral("dxTLAny"));
        m_grid.setColumns(Columns);
        focus("2026-02-20", "2026-03-01");
        for (const char *letter : {"o", "s", ""}) {
            m_host.script.answers.insert(header(letter), printhost::packet({text("PatientName")}, {{text("王建国")}}));
            m_host.script.answers.insert(items(letter),
                                         printhost::packet({text("ItemName")}, {{text("青霉素")}, {text("床位费")}}));
        }
        (void)m_host.takeCreated();
    }
    ~FeeListTest() override
    {
        automation::setErrorDisplay({});
        common::setExecutableFolder({});
    }

    void lay(const char *name, const char *title, const char *line) const
    {
        QFile file(m_folder.filePath(QStringLiteral("Module/") + text(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QStringLiteral(R"(<report title="t" paper="A4"><title><text x="0" y="0" w="170" h="6">%1</text>)"
                                  R"(</title><detail><text x="0" y="0" w="170" h="6">%2</text></detail></report>)")
                       .arg(text(title), text(line))
                       .toUtf8());
    }
    void focus(const char *inDate, const char *outDate)
    {
        m_grid.clearNodes();
        const TdxTreeListNode row = m_grid.addNode();
        const char *const values[] = {inDate, outDate, "4201", "00'12", "1", "3"};
        for (int i = 0; i < 6; ++i)
            row.setValue(i, text(values[i]));
        m_grid.setFocusedNode(row);
    }
    void inDialog(const std::function<void(QWidget &)> &work, int type = 1)
    {
        const ModalVisit visit(QStringLiteral("frmPrint"), work);
        PrintFeeList(m_grid, type);
    }
    [[nodiscard]] QStringList calls() { return std::exchange(m_host.script.calls, {}); }

    QTemporaryDir m_folder;
    printhost::Host m_host;
    NotedPapers m_papers;
    QStringList m_errors;
    TdxTreeList m_grid;
};

QDateEdit &picker(const QWidget &dialog, const char *name)
{
    return hands::find<QDateEdit>(dialog, name);
}

} // namespace

TEST_F(FeeListTest, OpensWithTheDatesOfTheStayAndTheDailyList)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle(), text("打印费用清单"));
        EXPECT_EQ(hands::find<QLabel>(dialog, "LbDates").text(), text("请选择打印费用清单时间："));
        EXPECT_EQ(picker(dialog, "dtpBegDate").text(), QStringLiteral("2026-02-20"));
        EXPECT_EQ(picker(dialog, "dtpEndDate").text(), QStringLiteral("2026-03-01"));
        EXPECT_EQ(hands::find<QRadioButton>(dialog, "rbDate").text(), text("每日清单"));
        EXPECT_EQ(hands::find<QRadioButton>(dialog, "rbAll").text(), text("总清单"));
        EXPECT_TRUE(hands::find<QRadioButton>(dialog, "rbDate").isChecked());
        EXPECT_FALSE(hands::find<QRadioButton>(dialog, "rbAll").isChecked());
    });
    EXPECT_TRUE(calls().isEmpty()) << "nothing is asked before printing";
}

TEST_F(FeeListTest, ADateWithATimeOfTheDayIsItsDay)
{
    for (const char *date : {"2026-10-08 10:30:00", "2026-10-08T10:30:00", "2026-10-08 00:00:00.000",
                             "2026-10-08T23:59:59.9999999", "2026-10-08 10:30", "2026-10-08 9:30:00"}) {
        focus(date, "2026-10-09 00:00:00");
        inDialog([this, date](QWidget &dialog) {
            EXPECT_EQ(picker(dialog, "dtpBegDate").date(), QDate(2026, 10, 8)) << date;
            EXPECT_EQ(picker(dialog, "dtpEndDate").date(), QDate(2026, 10, 9)) << date;
            hands::click(dialog, "btnPrint");
            EXPECT_EQ(calls(), QStringList({header("o"), items("o", "2026-10-08", "2026-10-09")}));
        });
    }
}

TEST_F(FeeListTest, ATextThatOnlyLooksLikeADateAndATimeIsRefused)
{
    for (const char *date : {"2026-10-08 25:30:00", "2026-10-08 10:60:00", "2026-10-08 10", "2026-13-08 10:30:00",
                             "2026-10-08 10:30:00 x", "10:30:00", "2026-10-08 ", "2026-10-0810:30:00"}) {
        focus(date, "2026-10-09");
        EXPECT_THROW(PrintFeeList(m_grid, 1), std::invalid_argument) << date;
    }
}

TEST_F(FeeListTest, AReversedRangeIsAskedAboutBeforeAnythingIsAskedOfTheDatabase)
{
    struct Boxes final : toolkit::MessageBoxes {
        QStringList asked;
        bool answer = false;

        Boxes() { toolkit::setMessageBoxes(this); }
        ~Boxes() override { toolkit::setMessageBoxes(nullptr); }
        bool ask(QWidget *, const QString &title, const QString &question) override
        {
            asked.append(title + u'|' + question);
            return answer;
        }
        void tell(QWidget *, const QString &, const QString &) override { ADD_FAILURE(); }
    } boxes;
    inDialog([this, &boxes](QWidget &dialog) {
        picker(dialog, "dtpBegDate").setDate(QDate(2026, 3, 2));
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(boxes.asked,
                  QStringList(text("打印费用清单|开始日期 2026-03-02 晚于结束日期 "
                                   "2026-03-01，清单中不会有任何费用。\n仍要打印吗？")));
        EXPECT_TRUE(calls().isEmpty());
        EXPECT_TRUE(m_papers.take().isEmpty());
        EXPECT_TRUE(dialog.isVisible());
        // The clerk may have it, with its header.
        boxes.answer = true;
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(calls(), QStringList({header("o"), items("o", "2026-03-02", "2026-03-01")}));
        EXPECT_EQ(m_papers.take(), QStringList(text("每日 王建国 王会计")));
        // One day is a range.
        picker(dialog, "dtpBegDate").setDate(QDate(2026, 3, 1));
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(boxes.asked.size(), 2);
    });
}

TEST_F(FeeListTest, MakesHostObjectsOfItsOwnForEveryOpening)
{
    inDialog([this](QWidget &) {
        EXPECT_EQ(m_host.takeCreated(), QStringList({QStringLiteral("DataCtl"), QStringLiteral("FuncStorage")}));
    });
    inDialog([](QWidget &dialog) {
        hands::click(dialog, "btnPrint");
        hands::click(dialog, "btnPrint");
    });
    EXPECT_EQ(m_host.takeCreated(), QStringList({QStringLiteral("DataCtl"), QStringLiteral("FuncStorage")}));
}

TEST_F(FeeListTest, PrintsTheDailyListAndClosesNoQuery)
{
    inDialog([this](QWidget &dialog) {
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(calls(), QStringList({header("o"), items("o")}));
        EXPECT_TRUE(dialog.isVisible()) << "the dialog stays for another list";
    });
    EXPECT_EQ(m_papers.take(), QStringList(text("每日 王建国 王会计\n青霉素\n床位费")));
}

TEST_F(FeeListTest, PrintsTheTotalListFromItsOwnForm)
{
    inDialog([](QWidget &dialog) {
        hands::find<QRadioButton>(dialog, "rbAll").click();
        hands::click(dialog, "btnPrint");
    });
    EXPECT_EQ(calls(), QStringList({header("o"), items("o")})) << "the same rows";
    EXPECT_EQ(m_papers.take(), QStringList(text("总 王建国 王会计 王会计 1\n青霉素\n床位费")));
}

TEST_F(FeeListTest, TablesFollowTheType)
{
    const auto print = [](QWidget &dialog) { hands::click(dialog, "btnPrint"); };
    inDialog(print, 2);
    EXPECT_EQ(calls(), QStringList({header("s"), items("s")}));
    inDialog(print, 3);
    EXPECT_EQ(calls(), QStringList({header(""), items("")}));
}

TEST_F(FeeListTest, OtherDatesNarrowBothLists)
{
    inDialog([this](QWidget &dialog) {
        picker(dialog, "dtpBegDate").setDate(QDate(2026, 2, 21));
        picker(dialog, "dtpEndDate").setDate(QDate(2026, 2, 22));
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(calls(), QStringList({header("o"), items("o", "2026-02-21", "2026-02-22")}));
        hands::find<QRadioButton>(dialog, "rbAll").click();
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(calls(), QStringList({header("o"), items("o", "2026-02-21", "2026-02-22")}));
    });
}

TEST_F(FeeListTest, AnEmptyListStillCarriesItsHeader)
{
    m_host.script.answers.insert(items("o"), printhost::packet({text("ItemName")}, {}));
    inDialog([](QWidget &dialog) { hands::click(dialog, "btnPrint"); });
    EXPECT_EQ(m_papers.take(), QStringList(text("每日 王建国 王会计")));
    EXPECT_TRUE(m_errors.isEmpty());
}

TEST_F(FeeListTest, OtherVariablesKeepTheReportsValue)
{
    lay("费用清单.rmf", "[uSeRnAmE],[UserName1],[Page]", "x");
    inDialog([](QWidget &dialog) { hands::click(dialog, "btnPrint"); });
    EXPECT_EQ(m_papers.take(), QStringList(text("王会计,,1\nx\nx")));
}

// The dates are compared as texts, as the environment writes them: only yyyy-mm-dd selects the days that are meant.
TEST_F(FeeListTest, DatesGoInAsTheEnvironmentWritesThem)
{
    const LocaleName locale("de_DE.UTF-8");
    inDialog([this](QWidget &dialog) {
        EXPECT_EQ(picker(dialog, "dtpBegDate").text(), QStringLiteral("20.02.26"));
        EXPECT_EQ(picker(dialog, "dtpBegDate").date(), QDate(2026, 2, 20));
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(calls(), QStringList({header("o"), items("o", "20.02.26", "01.03.26")}));
    });
}

TEST_F(FeeListTest, ADateThatIsNoneStopsTheOpening)
{
    focus("2026-02-20", "");
    EXPECT_THROW(PrintFeeList(m_grid, 1), std::invalid_argument);
    EXPECT_TRUE(m_host.takeCreated().isEmpty());
}

TEST_F(FeeListTest, NothingOpensWithoutAFocusedRow)
{
    m_grid.clearNodes();
    PrintFeeList(m_grid, 1);
    EXPECT_TRUE(m_host.takeCreated().isEmpty());
}

TEST_F(FeeListTest, ExitClosesTheDialog)
{
    inDialog([](QWidget &dialog) {
        EXPECT_EQ(hands::find<QAbstractButton>(dialog, "btnExit").text(), text("退出(&E)"));
        hands::click(dialog, "btnExit");
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(FeeListTest, AFailingQueryIsShownByTheHostAndTheDialogStays)
{
    m_host.script.failingQuery = QStringLiteral(" select a.ItemName");
    inDialog([this](QWidget &dialog) {
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(m_errors.size(), 1);
        EXPECT_TRUE(m_errors.value(0).contains(text("故障")));
        EXPECT_TRUE(m_papers.take().isEmpty());
        m_host.script.failingQuery = QStringLiteral("none");
        hands::click(dialog, "btnPrint");
        EXPECT_EQ(m_papers.take().size(), 1);
    });
}

TEST_F(FeeListTest, AMissingFormIsNamed)
{
    ASSERT_TRUE(QFile::remove(m_folder.filePath(text("Module/费用清单(总).rmf"))));
    inDialog([this](QWidget &dialog) {
        hands::find<QRadioButton>(dialog, "rbAll").click();
        hands::click(dialog, "btnPrint");
        ASSERT_EQ(m_errors.size(), 1);
        EXPECT_TRUE(m_errors.at(0).contains(text("费用清单(总).rmf"))) << m_errors.at(0).toStdString();
    });
}

TEST_F(FeeListTest, TheDialogIsFreedWhenItsOpeningFails)
{
    {
        const printhost::Host other;
        printhost::Host::withdraw("FuncStorage");
        EXPECT_THROW(PrintFeeList(m_grid, 1), std::exception);
    }
    for (const QWidget *widget : QApplication::topLevelWidgets())
        EXPECT_NE(widget->objectName(), QStringLiteral("frmPrint"));
}

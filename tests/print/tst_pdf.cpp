// SPDX-License-Identifier: MIT
// From a stay of the demo county to PDF files, read back and compared with the database.
#include "report/output/target.h"
#include "tests/print/deskforms.h"
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "values/displayformat.h"
#include "vortaq/demo/demodata.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRadioButton>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class PdfTest : public testing::Test {
protected:
    PdfTest()
    {
        const QString database = m_folder.filePath(QStringLiteral("demo.db"));
        vortaq::createDemo(database, {120, 40, 1, QDate(2026, 3, 9), 6});
        Desk::Options options;
        options.database = database;
        m_desk.emplace(options);
        layForms(QStringLiteral(TEMPLATES));
        report::setTarget(&m_target);
        grid().setFocusedNode(grid().node(0));
        const auto cell = [this](const char *column) {
            return grid().node(0).text(grid().columnByName(QString::fromUtf8(column))->position());
        };
        m_condition =
            QStringLiteral(" where OrgCode='%1' and CoopMedCode='%2' and IDNo=%3 and DiagNo=%4")
                .arg(cell("dxTLUpOrgCode"), cell("dxTLUpCoopMedCode"), cell("dxTLUpIDNo"), cell("dxTLUpDiagNo"));
    }
    ~PdfTest() override { report::setTarget(nullptr); }

    TdxTreeList &grid()
    {
        if (!m_isOpen)
            m_desk->open();
        m_isOpen = true;
        return hands::find<TdxTreeList>(m_desk->form(), "dxTLUp");
    }
    /// Cells of the stay's rows in a table.
    [[nodiscard]] QStringList stored(const char *columns, const char *table, const char *more = "") const
    {
        return m_desk->rows(
            QStringLiteral("select %1 from %2%3%4").arg(text(columns), text(table), m_condition, text(more)).toUtf8());
    }
    /// The only page or pages of a document, without blanks and line ends.
    [[nodiscard]] QString pdf(const char *title) const
    {
        QProcess process;
        process.start(QStringLiteral(PDFTOTEXT),
                      {QStringLiteral("-layout"), m_target.folder.filePath(text(title) + QStringLiteral(".pdf")),
                       QStringLiteral("-")});
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        QString content = QString::fromUtf8(process.readAllStandardOutput());
        return content.remove(u' ').remove(u'\n').remove(u'\f');
    }
    static QString amount(const QString &number)
    {
        return values::formatFloat(QStringLiteral(",0.00"), values::parseAmount(number));
    }

    struct Folder {
        QTemporaryDir folder;
    };
    struct Target final : Folder, report::Target {
        void show(report::Document &document, QWidget *parent) override
        {
            report::PdfFolder(folder.path()).show(document, parent);
        }
    };

    QTemporaryDir m_folder;
    std::optional<Desk> m_desk;
    bool m_isOpen = false;
    Target m_target;
    QString m_condition;
};

} // namespace

TEST_F(PdfTest, SettlementSheetShowsTheStoredSettlement)
{
    hands::click(m_desk->form(), "btnOutFee");
    const QStringList settled = stored("PatientName,IllName,InDate,OutDate,Fee,CanFreeFee,FreeFee", "o_CbZyJsb");
    ASSERT_EQ(settled.size(), 1);
    const QStringList cells = settled.at(0).split(u'|');
    const QString content = pdf("结算单");
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(content.contains(cells.at(i))) << cells.at(i).toStdString();
    EXPECT_TRUE(content.contains(text("医疗费用总额") + amount(cells.at(4)) + text("可补偿费用") + amount(cells.at(5))
                                 + text("实际补偿") + amount(cells.at(6))))
        << content.toStdString();
    const QStringList types = stored("(select FeeTypeName from p_fylb t where t.FeeTypeCode=m.FeeTypeCode),Fee,"
                                     "CanFreeFee,round(Fee-CanFreeFee,2)",
                                     "o_CbZyJsMxb m");
    EXPECT_GT(types.size(), 2);
    for (const QString &row : types) {
        const QStringList type = row.split(u'|');
        EXPECT_TRUE(content.contains(type.at(0) + amount(type.at(1)) + amount(type.at(2)) + amount(type.at(3))))
            << row.toStdString();
    }
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PdfTest, ApprovalFormShowsTheSummaryAndTheSumsOfALifetime)
{
    hands::click(m_desk->form(), "btnFeeGs");
    const QString content = pdf("住院审批表");
    const QStringList settled = stored("PatientName,FreeFee,DayCount", "o_CbZyJsb");
    ASSERT_EQ(settled.size(), 1);
    const QStringList cells = settled.at(0).split(u'|');
    EXPECT_TRUE(content.contains(cells.at(0)));
    const QString exact = QString::number(cells.at(1).toDouble(), 'f', 2);
    EXPECT_TRUE(content.contains(QStringLiteral("住院%1天，医疗费用").arg(cells.at(2)))) << content.toStdString();
    EXPECT_TRUE(content.contains(QStringLiteral("本次补偿%1元").arg(exact))) << content.toStdString();
    const QStringList keys = stored("CoopMedCode,IDNo", "o_CbZyJsb").value(0).split(u'|');
    const QStringList sums = m_desk->rows(
        QStringLiteral("select round(sum(TotalFee),2),round(sum(FreeFee),2) from (select TotalFee,FreeFee,CoopMedCode,"
                       "IDNo from o_CbZyBxDj union all select TotalFee,FreeFee,CoopMedCode,IDNo from s_CbZyBxDj) where "
                       "CoopMedCode='%1' and IDNo=%2")
            .arg(keys.at(0), keys.at(1))
            .toUtf8());
    const QStringList sum = sums.value(0).split(u'|');
    EXPECT_TRUE(content.contains(text("累计总费用") + amount(sum.at(0)) + text("累计补偿") + amount(sum.at(1))))
        << content.toStdString();
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(PdfTest, BothFeeListsShowEveryItemAndTheTotal)
{
    const ModalVisit visit(QStringLiteral("frmPrint"), [](QWidget &dialog) {
        hands::click(dialog, "btnPrint");
        hands::find<QRadioButton>(dialog, "rbAll").click();
        hands::click(dialog, "btnPrint");
    });
    hands::click(m_desk->form(), "btnFeeInfo");
    const QString total = stored("round(sum(Fee),2)", "o_CbZyBxDjZb").value(0);
    const QStringList items = stored("ItemName,Fee", "o_CbZyBxDjZb");
    EXPECT_GT(items.size(), 2);
    const QStringList papers = QDir(m_target.folder.path()).entryList({QStringLiteral("*.pdf")}, QDir::Files);
    ASSERT_EQ(papers.size(), 2);
    for (const QString &paper : papers) {
        const QString content = pdf(paper.chopped(4).toUtf8().constData());
        EXPECT_TRUE(content.contains(amount(total))) << content.toStdString();
        EXPECT_TRUE(content.contains(text("打印人：管理员"))) << content.toStdString();
        for (const QString &item : items)
            EXPECT_TRUE(content.contains(amount(item.section(u'|', 1, 1)))) << item.toStdString();
    }
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

// SPDX-License-Identifier: MIT
// The papers that the hospital hands out, with one patient's data.
#include "report/TRMDBDataSet.h"
#include "report/TRMReport.h"
#include "report/document.h"
#include "report/output/print.h"
#include "report/output/target.h"

#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"
#include "toolkit/clock.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// Notes the boxes of every page as text, in their order.
struct NotingTarget final : report::Target {
    std::vector<QStringList> pages;
    QStringList cut; ///< texts that their boxes could not hold

    void show(report::Document &document, QWidget *) override
    {
        pages.clear();
        (void)document.finish();
        for (int index = 0; index < document.pageCount(); ++index) {
            QStringList texts;
            for (const report::TextBox &text : document.page(index).texts) {
                QString lines;
                for (const report::TextLine &line : text.lines)
                    lines += line.text;
                QString whole = text.text;
                if (lines.remove(u' ') != whole.remove(u'\n').remove(u' '))
                    cut.append(text.text);
                if (!text.text.isEmpty())
                    texts.append(text.text);
            }
            pages.push_back(texts);
        }
    }
};

class Papers : public testing::Test {
protected:
    Papers()
    {
        report::setTarget(&target);
        toolkit::setClock([] { return QDate(2026, 11, 21); });
        paper.setDataSet(&binding);
    }
    ~Papers() override
    {
        report::setTarget(nullptr);
        toolkit::setClock({});
    }

    void load(const char *name) { paper.LoadFromFile(QStringLiteral(TEMPLATES "/") + QString::fromUtf8(name)); }
    void showSettlement(const char *name)
    {
        samplepaper::fillSettlement(rows);
        binding.setDataSet(&rows);
        paper.setOnGetValue(samplepaper::answerFees);
        load(name);
        paper.ShowReport();
    }
    void showFees(const char *name, int count)
    {
        samplepaper::fillFeeHeader(header);
        samplepaper::fillFeeItems(rows, count);
        binding.setDataSet(&rows);
        paper.setHeaders({&header});
        paper.setOnGetValue(samplepaper::answerUser);
        load(name);
        paper.ShowReport();
    }
    /// The text behind a caption on the first page.
    QString behind(const char *caption) const
    {
        const QStringList &texts = target.pages.at(0);
        return texts.value(texts.indexOf(QString::fromUtf8(caption)) + 1);
    }

    NotingTarget target;
    TClientDataSet rows;
    TClientDataSet header;
    TRMDBDataSet binding;
    TRMReport paper;
};

TEST_F(Papers, SettlementSheetCarriesEveryField)
{
    showSettlement("结算单.rmf");
    ASSERT_EQ(target.pages.size(), 1U);
    EXPECT_EQ(target.cut, QStringList());
    EXPECT_EQ(target.pages.at(0).first(), QStringLiteral("白石镇中心卫生院"));
    EXPECT_EQ(behind("患者姓名"), QStringLiteral("欧阳小梅"));
    EXPECT_EQ(behind("家庭属性"), QStringLiteral("低保户/优抚对象"));
    EXPECT_EQ(behind("住院天数"), QStringLiteral("12 天"));
    EXPECT_EQ(behind("医疗费用总额"), QStringLiteral("6,843.52"));
    EXPECT_EQ(behind("补偿金额（大写）"), QStringLiteral("人民币：肆仟贰佰肆拾玖元陆角肆分"));
    const QStringList &texts = target.pages.at(0);
    const qsizetype drugs = texts.indexOf(QStringLiteral("西药费"));
    EXPECT_EQ(texts.mid(drugs, 8),
              (QStringList{QStringLiteral("西药费"), QStringLiteral("2,318.46"), QStringLiteral("2,012.05"),
                           QStringLiteral("306.41"), QStringLiteral("化验费"), QStringLiteral("445.05"),
                           QStringLiteral("445.05"), QStringLiteral("0.00")}));
    // Of a fee type without amounts only the name is printed.
    EXPECT_EQ(texts.at(texts.indexOf(QStringLiteral("输氧费")) + 1), QStringLiteral("检查费"));
    EXPECT_TRUE(texts.contains(QStringLiteral("打印日期：2026-11-21")));
}

TEST_F(Papers, SettlementSheetWithoutARecordIsAnEmptyForm)
{
    samplepaper::fillSettlement(rows);
    samplepaper::fill(rows, rows.packet()->columnNames(), {});
    binding.setDataSet(&rows);
    load("结算单.rmf");
    paper.ShowReport();
    ASSERT_EQ(target.pages.size(), 1U);
    EXPECT_EQ(behind("患者姓名"), QStringLiteral("性别"));
}

TEST_F(Papers, AnEmptyFormHasNoUnitsWithoutValues)
{
    for (const char *form : {"结算单.rmf", "住院审批表.rmf"}) {
        samplepaper::fillSettlement(rows);
        samplepaper::fill(rows, rows.packet()->columnNames(), {});
        binding.setDataSet(&rows);
        load(form);
        paper.ShowReport();
        for (const QString &text : target.pages.at(0)) {
            for (const char *unit : {"第  次", "天", "￥"})
                EXPECT_NE(text.trimmed().toStdString(), unit) << form;
        }
    }
}

TEST_F(Papers, AmountsOfThirteenDigitsArePrinted)
{
    const struct {
        const char *amount;
        const char *words;
    } amounts[] = {{"1000000000000.00", "人民币：壹万亿元整"},
                   {"9999999999999.99", "人民币：玖万玖仟玖佰玖拾玖亿玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分"},
                   {"10000000000000.00", "人民币：####"}};
    for (const auto &[amount, words] : amounts) {
        samplepaper::fillSettlement(rows);
        const int column = rows.packet()->columnIndex(u"FreeFee");
        std::vector<std::string> row;
        for (int at = 0; at < rows.packet()->columnCount(); ++at)
            row.emplace_back(at == column ? amount : rows.packet()->text(0, at));
        samplepaper::fill(rows, rows.packet()->columnNames(), {row});
        binding.setDataSet(&rows);
        paper.setOnGetValue(samplepaper::answerFees);
        load("结算单.rmf");
        paper.ShowReport();
        ASSERT_EQ(target.pages.size(), 1U);
        EXPECT_EQ(behind("补偿金额（大写）").toStdString(), words);
        EXPECT_EQ(target.cut, QStringList());
    }
}

TEST_F(Papers, ApprovalFormCarriesTheCalculation)
{
    showSettlement("住院审批表.rmf");
    ASSERT_EQ(target.pages.size(), 1U);
    EXPECT_EQ(target.cut, QStringList());
    EXPECT_EQ(behind("补偿限额"), QStringLiteral("限额10000"));
    EXPECT_EQ(behind("补偿公式"), QStringLiteral("乡镇卫生院：（可报销费用-起付线100元）×80%"));
    EXPECT_TRUE(behind("计算说明").startsWith(QStringLiteral("总费用6843.52元")));
    EXPECT_EQ(behind("累计总费用"), QStringLiteral("11,930.27"));
    EXPECT_EQ(behind("累计补偿"), QStringLiteral("7,012.33"));
    EXPECT_EQ(behind("补偿金额大写"), QStringLiteral("人民币：肆仟贰佰肆拾玖元陆角肆分"));
}

TEST_F(Papers, DailyListGroupsByDay)
{
    showFees("费用清单.rmf", 30);
    EXPECT_EQ(target.cut, QStringList());
    QStringList all;
    for (const QStringList &page : target.pages)
        all += page;
    QStringList days = all.filter(QStringLiteral("日期：2026-01"));
    days.removeDuplicates(); // a day that goes on has its heading again on the next page
    EXPECT_EQ(days, (QStringList{QStringLiteral("日期：2026-01-01"), QStringLiteral("日期：2026-01-02")}));
    EXPECT_EQ(all.filter(QStringLiteral("小计")),
              (QStringList{QStringLiteral("2026-01-01 小计（24 项）"), QStringLiteral("2026-01-02 小计（6 项）")}));
    EXPECT_EQ(all.at(all.indexOf(QStringLiteral("2026-01-01 小计（24 项）")) + 1), QStringLiteral("6,785.26"));
    EXPECT_TRUE(all.contains(QStringLiteral("打印人：李会计　　打印日期：2026-11-21")));
    // Every item says whether it is reimbursed.
    EXPECT_EQ(all.value(all.indexOf(QStringLiteral("金额（元）")) + 1), QStringLiteral("报销"));
    EXPECT_EQ(all.count(QStringLiteral("是")), 25);
    EXPECT_EQ(all.count(QStringLiteral("否")), 5);
}

TEST_F(Papers, TotalListRepeatsItsHeadingAndNamesThePatientOnEveryPage)
{
    showFees("费用清单(总).rmf", 100);
    EXPECT_EQ(target.cut, QStringList());
    ASSERT_EQ(target.pages.size(), 4U);
    for (std::size_t at = 0; at < target.pages.size(); ++at) {
        EXPECT_EQ(target.pages[at].count(QStringLiteral("项目名称")), 1);
        EXPECT_EQ(target.pages[at].count(QStringLiteral("患者：欧阳小梅　　住院号：ZY20260187")), at == 0 ? 0 : 1);
        EXPECT_TRUE(target.pages[at].last().endsWith(QStringLiteral("第 %1 页　共 4 页").arg(at + 1)));
    }
    const QStringList &last = target.pages.back();
    EXPECT_TRUE(last.contains(QStringLiteral("共 100 项")));
    EXPECT_TRUE(last.contains(QStringLiteral("人民币：贰万捌仟捌佰壹拾玖元玖角肆分")));
    EXPECT_TRUE(last.contains(QStringLiteral("28,819.94")));
}

TEST_F(Papers, AnEmptyListStillPrintsItsHeader)
{
    showFees("费用清单.rmf", 0);
    ASSERT_EQ(target.pages.size(), 1U);
    EXPECT_EQ(behind("姓　　名："), QStringLiteral("欧阳小梅"));
    EXPECT_TRUE(target.pages.at(0).contains(QStringLiteral("人民币：零元整")));
}

TEST_F(Papers, EveryCharacterIsInThePdf)
{
    const QTemporaryDir folder;
    report::setTarget(nullptr);
    qApp->setProperty("reportFolder", folder.path());
    showSettlement("结算单.rmf");
    qApp->setProperty("reportFolder", QVariant());
    QProcess process;
    process.start(QStringLiteral(PDFTOTEXT), {folder.filePath(QStringLiteral("结算单.pdf")), QStringLiteral("-")});
    process.waitForFinished(-1);
    const QString text = QString::fromUtf8(process.readAllStandardOutput());
    for (const char *wanted :
         {"白石镇中心卫生院", "住院费用补偿结算单", "急性结石性胆囊炎；胆总管结石；高血压病3级（极高危）；2型糖尿病",
          "人民币：肆仟贰佰肆拾玖元陆角肆分", "￥4,249.64"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(wanted))) << wanted << "\n" << text.toStdString();
}

TEST_F(Papers, ErrorsComeOutOfTheReport)
{
    TRMReport empty;
    EXPECT_THROW(empty.ShowReport(), std::runtime_error);
    EXPECT_THROW(load("没有.rmf"), std::runtime_error);
    paper.setOnGetValue([](const QString &, QVariant &) { throw std::invalid_argument("回调"); });
    load("结算单.rmf");
    EXPECT_THROW(paper.ShowReport(), std::invalid_argument);
    // After a template that cannot be loaded the one before is still there.
    EXPECT_THROW(load("没有.rmf"), std::runtime_error);
    paper.setOnGetValue({});
    paper.ShowReport();
    EXPECT_EQ(target.pages.size(), 1U);
}

} // namespace

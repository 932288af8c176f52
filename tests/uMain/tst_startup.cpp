// SPDX-License-Identifier: MIT
// What happens when the main form is shown.
#include "Common/executablefolder.h"
#include "automation/registry.h"
#include "data/statements/startup.h"
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/uMain/expected.h"
#include "toolkit/CaptionPanel.h"
#include "toolkit/TdxCurrencyEdit.h"
#include "toolkit/TdxDateEdit.h"
#include "uMain/TfrmMain.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

using namespace expected;

namespace {

QStringList times(const QString &line, int count)
{
    return QList<QString>(count, line);
}

QStringList wholeStart()
{
    QStringList lines;
    for (const char *name : {"AreaCode", "OrgCode", "OrgName", "OrgType", "OrgGrade"})
        lines += read(name);
    lines += unbilledTree() + times(read("Color-5"), 2) + times(read("DigitalFormat"), 3);
    lines += candidates() + QStringList({read("Color-5"), QStringLiteral("FuncStorage.UserName()")})
        + times(read("DigitalFormat"), 3);
    lines += reportedBills() + times(read("Color-5"), 2) + times(read("DigitalFormat"), 3);
    lines += returnedBills() + times(read("Color-5"), 2) + times(read("DigitalFormat"), 3);
    lines += times(read("DigitalFormat"), 11); // one for each money edit of the form
    lines += times(QStringLiteral("FuncStorage.RightParam()"), 10); // one for each tagged command
    lines += history() + times(read("Color-5"), 2) + times(read("DigitalFormat"), 3);
    lines += openSql(data::settlementProcedureLookup()); // the one query that is not closed
    return lines;
}

QStringList disabledCommands(const QWidget &form)
{
    QStringList names;
    for (const char *name : {"btnSave", "btnBack", "btnUpCancel", "btnUpAdd", "btnBackCancel", "btnBackAdd"}) {
        if (!hands::find<QAbstractButton>(form, name).isEnabled())
            names.append(QString::fromUtf8(name));
    }
    for (const char *name : {"mUpSave", "mUpCancel", "mBackUp", "mBackDelete", "N1", "mCheck"}) {
        if (!hands::find<QAction>(form, name).isEnabled())
            names.append(QString::fromUtf8(name));
    }
    return names;
}

} // namespace

TEST(StartUp, nothingIsAskedOfTheHostBeforeTheFormIsShown)
{
    Desk desk;
    EXPECT_TRUE(desk.conversation().lines().isEmpty());
    const TfrmMain form;
    EXPECT_TRUE(desk.conversation().lines().isEmpty());
}

TEST(StartUp, asksTheHostInOrder)
{
    Desk desk;
    desk.open();
    EXPECT_EQ(desk.conversation().lines(), wholeStart());
    EXPECT_TRUE(desk.errors().isEmpty()) << desk.errors().join(u'|').toStdString();
}

TEST(StartUp, runsAgainAtEveryShowing)
{
    Desk desk;
    desk.open().hide();
    desk.conversation().take();
    desk.form().show();
    EXPECT_EQ(desk.conversation().lines(), wholeStart());
}

TEST(StartUp, fillsThePagesAndOpensOnBillMaking)
{
    Desk desk;
    const QWidget &form = desk.open();
    const auto &pages = hands::find<QTabWidget>(form, "PageControl1");
    QStringList captions;
    QStringList names;
    for (int i = 0; i < pages.count(); ++i) {
        captions.append(pages.tabText(i));
        names.append(pages.widget(i)->objectName());
    }
    EXPECT_EQ(captions,
              QStringList({QStringLiteral("未制单病人查询"), QStringLiteral("报销制单"), QStringLiteral("上报制单"),
                           QStringLiteral("退单制单"), QStringLiteral("历史制单查询")}));
    EXPECT_EQ(names,
              QStringList({QStringLiteral("TabSheet1"), QStringLiteral("TabSheet3"), QStringLiteral("tbUp"),
                           QStringLiteral("tbBack"), QStringLiteral("TabSheet2")}));
    EXPECT_EQ(pages.currentWidget()->objectName(), QStringLiteral("TabSheet3"));

    EXPECT_EQ(hands::find<QLineEdit>(form, "edtPrincipal").text(), QStringLiteral("管理员"));
    EXPECT_EQ(hands::find<QLineEdit>(form, "edtOrgCode").text(), QStringLiteral("42990101"));
    EXPECT_EQ(hands::find<QLineEdit>(form, "edtOrgName").text(), QStringLiteral("甲镇卫生院"));
    EXPECT_TRUE(hands::find<QLineEdit>(form, "edtOrgCode").isEnabled());
    EXPECT_EQ(hands::find<TdxDateEdit>(form, "dxDEWirte").text(), QStringLiteral("2026-03-09"));
}

TEST(StartUp, formatsMoneyColumnsAndEdits)
{
    Desk desk;
    const QWidget &form = desk.open();
    for (const char *name : {"dxTLBxDjDetail", "dxTLUp", "dxTLUpBill", "dxTLBackBill", "dxTLOldBill"}) {
        const auto columns = hands::find<TdxTreeList>(form, name).findChildren<TdxTreeListCurrencyColumn *>();
        EXPECT_EQ(columns.size(), 3) << name;
        for (const auto *column : columns)
            EXPECT_EQ(column->displayFormat(), QStringLiteral(",0.00;-,0.00")) << name;
    }
    for (const auto *edit : form.findChildren<TdxCurrencyEdit *>())
        EXPECT_EQ(edit->displayFormat(), QStringLiteral(",0.00;-,0.00")) << edit->objectName().toStdString();
}

TEST(StartUp, centresTheVerticalCaptions)
{
    Desk desk;
    const QWidget &form = desk.open();
    const auto check = [&form](const char *panelName, const char *labelName, const QString &text) {
        const auto &panel = hands::find<CaptionPanel>(form, panelName);
        const auto &label = hands::find<QLabel>(form, labelName);
        EXPECT_EQ(label.text(), text) << labelName;
        EXPECT_EQ(label.y(), (panel.height() - label.height()) / 2) << labelName;
    };
    const QString bills = QStringLiteral("住\r\n \r\n院\r\n \r\n报\r\n \r\n销\r\n \r\n登\r\n \r\n记\r\n \r\n表");
    check("Panel1", "LbZyDjInfo",
          QStringLiteral("住\r\n \r\n院\r\n \r\n登\r\n \r\n记\r\n \r\n信\r\n \r\n息\r\n \r\n表"));
    check("Panel13", "LbUp", bills);
    check("Panel19", "LbUpBill", bills);
    check("Panel26", "LbBack", bills);
    check("Panel31", "LbOld", bills);
    desk.form().resize(1366, 601);
    check("Panel13", "LbUp", bills);
}

TEST(StartUp, keepsTheSessionsFacts)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("AreaCode"), QStringLiteral("42990")}};
    Desk desk(options);
    const auto &form = dynamic_cast<TfrmMain &>(desk.open());
    EXPECT_EQ(form.session().connStyle, 1);
    EXPECT_EQ(form.session().AreaCode, QStringLiteral("42990"));
    EXPECT_EQ(form.session().areaPrefix, QStringLiteral("42990")) << "shorter than six characters: the whole code";
    EXPECT_EQ(form.session().OrgType, QStringLiteral("2"));
    EXPECT_EQ(form.session().OrgGrade, QStringLiteral("3"));
    EXPECT_EQ(form.session().FeeInterfaceMode, 2);
}

TEST(StartUp, areaPrefixIsSixCharacters)
{
    Desk desk;
    EXPECT_EQ(dynamic_cast<TfrmMain &>(desk.open()).session().areaPrefix, QStringLiteral("429901"));
}

TEST(StartUp, findsTheSettlementProcedure)
{
    Desk desk;
    desk.sqlite("insert into v_Procedure(Name,Text) values ('Pro_Zy_FeeInterFace','')");
    EXPECT_EQ(dynamic_cast<TfrmMain &>(desk.open()).session().FeeInterfaceMode, 1);
}

TEST(StartUp, rightsAreSubstringsOfTheGrant)
{
    Desk::Options options;
    options.user = QStringLiteral("02"); // granted "12": that is 1, 2 and 12
    Desk desk(options);
    EXPECT_EQ(disabledCommands(desk.open()),
              QStringList({QStringLiteral("btnUpCancel"), QStringLiteral("btnUpAdd"), QStringLiteral("btnBackCancel"),
                           QStringLiteral("btnBackAdd"), QStringLiteral("mUpSave"), QStringLiteral("mUpCancel"),
                           QStringLiteral("mBackUp"), QStringLiteral("mBackDelete")}));
}

TEST(StartUp, allRightsLeaveEverythingEnabled)
{
    Desk desk;
    EXPECT_TRUE(disabledCommands(desk.open()).isEmpty());
}

TEST(StartUp, anotherShowingDoesNotEnableAgain)
{
    Desk desk;
    QWidget &form = desk.open();
    hands::find<QAbstractButton>(form, "btnSave").setEnabled(false);
    form.hide();
    form.show();
    EXPECT_EQ(disabledCommands(form), QStringList({QStringLiteral("btnSave")}));
}

namespace {

class SetupFile : public testing::TestWithParam<const char *> { };

} // namespace

TEST_P(SetupFile, withoutANumberEndsTheStart)
{
    Desk::Options options;
    if (GetParam() == nullptr)
        options.setupFile.reset();
    else
        options.setupFile = QString::fromUtf8(GetParam());
    Desk desk(options);
    const QWidget &form = desk.open();
    EXPECT_TRUE(desk.conversation().lines().isEmpty()) << "nothing is asked after the setup file was refused";
    ASSERT_EQ(desk.errors().size(), 1);
    const QString &error = desk.errors().first();
    EXPECT_TRUE(error.startsWith(QStringLiteral("载入窗口时出错：\n"))) << error.toStdString();
    for (const QString &part : {common::executableFolder() + QStringLiteral("setup.ini”"), QStringLiteral("[system]"),
                                QStringLiteral("connStyle"), QStringLiteral("\n[system]\nconnStyle=1\n")})
        EXPECT_TRUE(error.contains(part)) << error.toStdString();
    EXPECT_EQ(hands::find<TdxTreeList>(form, "dxTLUp").count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Odd, SetupFile,
                         testing::Values(nullptr, "", "[system]\n", "[system]\nconnStyle=\n",
                                         "[system]\nconnStyle=eins\n", "[system]\nconnStyle=1.0\n",
                                         "[other]\nconnStyle=1\n"));

TEST(StartUp, anOddSettingIsQuoted)
{
    Desk::Options options;
    options.setupFile = QStringLiteral("[system]\nconnStyle=一\n");
    Desk desk(options);
    desk.open();
    ASSERT_EQ(desk.errors().size(), 1);
    EXPECT_TRUE(desk.errors().first().contains(QStringLiteral("connStyle 写的是“一”，不是整数")))
        << desk.errors().first().toStdString();
}

TEST(StartUp, missingHostObjectEndsTheStartAtOnce)
{
    Desk desk;
    automation::unregisterObject(QStringLiteral("VortaqCore.CodeSearch"));
    desk.open();
    EXPECT_TRUE(desk.conversation().lines().isEmpty());
    EXPECT_EQ(desk.errors(),
              QStringList({QStringLiteral("载入窗口时出错：\n主程序没有提供对象“VortaqCore.CodeSearch”。")}));
}

TEST(StartUp, aFailingQueryEndsTheStartWhereItStands)
{
    Desk desk;
    desk.engine().failCall(3); // institutions, their first one's patients, candidates
    const QWidget &form = desk.open();
    EXPECT_EQ(desk.errors(), QStringList(failedWhile("载入窗口")));
    EXPECT_EQ(desk.conversation().lines().last(),
              openSql(data::billCandidates(std::nullopt)) + QStringLiteral(" !故障"));
    EXPECT_EQ(hands::find<TdxTreeList>(form, "dxTLDjOrgInfo").count(), 2) << "what was loaded stays";
    EXPECT_TRUE(hands::find<QLineEdit>(form, "edtPrincipal").text().isEmpty());
}

TEST(StartUp, withoutAnInstitutionRuleTheStatementBufferIsRunAsItStands)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("isBillAll"), QStringLiteral("3")}};
    Desk desk(options);
    const QWidget &form = desk.open();
    const QStringList lines = desk.conversation().lines();
    EXPECT_EQ(
        lines.mid(5, 4),
        QStringList({read("isBillAll"), read("isBillAll"), openSql(QString()), QStringLiteral("DataCtl.CloseSql()")}))
        << "at start-up the buffer is empty";
    EXPECT_EQ(hands::find<TdxTreeList>(form, "dxTLDjOrgInfo").count(), 0);
    EXPECT_EQ(hands::find<TdxTreeList>(form, "dxTLBxDjDetail").count(), 0);
    EXPECT_EQ(hands::find<TdxTreeList>(form, "dxTLUp").count(), 4) << "candidates are not narrowed";
    EXPECT_TRUE(desk.errors().isEmpty());
}

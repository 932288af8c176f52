// SPDX-License-Identifier: MIT
#include "uPrint/TfrmPrint.h"

#include "data/statements/feelist.h"
#include "data/tables.h"
#include "forms/recordcolumns.h"
#include "host/clientdataset.h"
#include "print/templates.h"
#include "report/TRMDBDataSet.h"
#include "report/TRMReport.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/guard.h"
#include "toolkit/messageboxes.h"
#include "toolkit/singleinstance.h"
#include "ui_TfrmPrint.h"
#include "values/shortdate.h"

namespace {

std::unique_ptr<TfrmPrint> frmPrint;

const QString DailyTemplate = QStringLiteral("Module\\费用清单.rmf");
const QString TotalTemplate = QStringLiteral("Module\\费用清单(总).rmf");

} // namespace

TfrmPrint::TfrmPrint(FeeListStay stay, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::TfrmPrint>())
    , m_stay(std::move(stay))
    , CDSMain(new TClientDataSet(this))
    , CDSDetail(new TClientDataSet(this))
    , RMDBDataSetDetail(new TRMDBDataSet(this))
    , RMReport1(new TRMReport(this))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("frmPrint"));
    CDSMain->setObjectName(QStringLiteral("CDSMain"));
    CDSDetail->setObjectName(QStringLiteral("CDSDetail"));
    RMDBDataSetDetail->setObjectName(QStringLiteral("RMDBDataSetDetail"));
    RMReport1->setObjectName(QStringLiteral("RMReport1"));
    for (QDateEdit *picker : {m_ui->dtpBegDate, m_ui->dtpEndDate})
        picker->setDisplayFormat(values::shortDateFormat());
    m_ui->dtpBegDate->setDate(m_stay.inDate);
    m_ui->dtpEndDate->setDate(m_stay.outDate);

    RMDBDataSetDetail->setDataSet(CDSDetail);
    RMReport1->setDataSet(RMDBDataSetDetail);
    RMReport1->setHeaders({CDSMain});
    RMReport1->setOnGetValue([this](const QString &name, QVariant &value) { RMReport1GetValue(name, value); });
    toolkit::connectGuarded(m_ui->btnPrint, &QPushButton::clicked, this, QStringLiteral("打印费用清单"),
                            [this] { btnPrintClick(); });
    toolkit::connectGuarded(m_ui->btnExit, &QPushButton::clicked, this, QStringLiteral("退出"), [this] { close(); });
}

TfrmPrint::~TfrmPrint() = default;

void TfrmPrint::ShowModal()
{
    FormShow();
    exec();
}

void TfrmPrint::FormShow()
{
    DataCtl = host::DataCtlProxy(automation::LateBound(QString::fromUtf16(host::DataCtlProxy::Identifier)));
    FuncStorage = host::FuncStorageProxy(automation::LateBound(QString::fromUtf16(host::FuncStorageProxy::Identifier)));
}

void TfrmPrint::btnPrintClick()
{
    if (!confirmDates())
        return;
    loadRows();
    RMReport1->LoadFromFile(print::templatePath(m_ui->rbDate->isChecked() ? DailyTemplate : TotalTemplate));
    RMReport1->ShowReport();
}

/// No day lies in a range that ends before it begins, which is a slip as a rule.
bool TfrmPrint::confirmDates()
{
    if (m_ui->dtpBegDate->date() <= m_ui->dtpEndDate->date())
        return true;
    const bool wanted =
        toolkit::messageBoxes().ask(this, windowTitle(),
                                    QStringLiteral("开始日期 %1 晚于结束日期 %2，清单中不会有任何费用。\n仍要打印吗？")
                                        .arg(m_ui->dtpBegDate->text(), m_ui->dtpEndDate->text()));
    if (!wanted)
        m_ui->dtpBegDate->setFocus();
    return wanted;
}

void TfrmPrint::loadRows()
{
    const QString prefix = data::tablePrefix(m_stay.billType);
    CDSMain->setData(DataCtl.OpenSql(data::feeListHeader(prefix, m_stay.key))); // nothing is closed in this dialog
    // The dates go in as the pickers show them and are compared as texts: only a locale that writes yyyy-mm-dd selects
    // the days that are meant.
    CDSDetail->setData(
        DataCtl.OpenSql(data::feeListItems(prefix, m_stay.key, m_ui->dtpBegDate->text(), m_ui->dtpEndDate->text())));
}

void TfrmPrint::RMReport1GetValue(const QString &name, QVariant &value)
{
    if (name.toLower() == QStringLiteral("username"))
        value = FuncStorage.UserName();
}

void PrintFeeList(const TdxTreeList &grid, int billType)
{
    const TdxTreeListNode row = grid.focusedNode();
    if (!row)
        return;
    const auto date = [&](const char *suffix) {
        return values::parseShortDate(row.text(forms::columnPosition(grid, suffix)));
    };
    toolkit::showSingleInstance(
        frmPrint, FeeListStay{forms::RecordColumns(grid).key(row), date("InDate"), date("OutDate"), billType},
        grid.window());
}

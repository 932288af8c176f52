// SPDX-License-Identifier: MIT
#include "print/PrintedDocuments.h"

#include "data/statements/settlement.h"
#include "data/tables.h"
#include "forms/recordcolumns.h"
#include "host/clientdataset.h"
#include "host/statementbuffer.h"
#include "print/templates.h"
#include "report/TRMDBDataSet.h"
#include "report/TRMReport.h"
#include "toolkit/TdxTreeList.h"
#include "values/displayformat.h"

#include <stdexcept>

namespace print {

namespace {

const QString SheetTemplate = QStringLiteral("Module\\结算单.rmf");
const QString FormTemplate = QStringLiteral("Module\\住院审批表.rmf");
const QString OrdinaryHousehold = QStringLiteral("一般农户");

QString cell(const TdxTreeList &grid, const char *suffix)
{
    return grid.focusedNode().text(forms::columnPosition(grid, suffix));
}

/// These are fields of the settlement; a report asks for them as variables only when it got none of its columns.
bool isHeaderAmount(const QString &name)
{
    return name.compare(u"Fee", Qt::CaseInsensitive) == 0 || name.compare(u"FreeFee", Qt::CaseInsensitive) == 0;
}

} // namespace

QString limitText(const QString &limitDef)
{
    if (limitDef.startsWith(u'0'))
        return QStringLiteral("不限");
    if (limitDef.startsWith(u'1'))
        return QStringLiteral("限额") + limitDef.mid(1);
    if (limitDef.startsWith(u'2'))
        return QStringLiteral("定额") + limitDef.mid(1);
    return limitDef;
}

PrintedDocuments::PrintedDocuments(host::StatementBuffer &statements, TClientDataSet &scratch, QObject *parent)
    : QObject(parent)
    , m_statements(statements)
    , m_settlement(statements)
    , CDSTmp(scratch)
    , CDSPrint(new TClientDataSet(this))
    , CDSPrintFee(new TClientDataSet(this))
    , CDSHomeProperty(new TClientDataSet(this))
    , RMReport2(new TRMReport(this))
    , RMDBDataSet1(new TRMDBDataSet(this))
{
    CDSPrint->setObjectName(QStringLiteral("CDSPrint"));
    CDSPrintFee->setObjectName(QStringLiteral("CDSPrintFee"));
    CDSHomeProperty->setObjectName(QStringLiteral("CDSHomeProperty"));
    RMReport2->setObjectName(QStringLiteral("RMReport2"));
    RMDBDataSet1->setObjectName(QStringLiteral("RMDBDataSet1"));
    RMDBDataSet1->setDataSet(CDSPrint);
    RMReport2->setDataSet(RMDBDataSet1);
    RMReport2->setOnGetValue([this](const QString &name, QVariant &value) { RMReport2GetValue(name, value); });
}

void PrintedDocuments::PrintSettlementSheet(const TdxTreeList &grid, int billType, const PrintSettings &settings)
{
    if (!grid.focusedNode())
        return;
    const data::RecordKey key = forms::RecordColumns(grid).key(grid.focusedNode());
    RMReport2->LoadFromFile(templatePath(SheetTemplate));
    const QString household = householdText(key);
    const QString prefix = data::tablePrefix(billType);
    m_statements.LoadDataSet(data::settlementSheet(prefix, key, household), *CDSPrint);
    m_statements.LoadDataSet(data::settlementFees(prefix, key), *CDSPrintFee);
    m_statements.LoadDataSet(data::sheetFeeTypes(data::lengthFunction(settings.connStyle)), CDSTmp);
    RMReport2->ShowReport();
}

QString PrintedDocuments::householdText(const data::RecordKey &key)
{
    m_statements.LoadDataSet(data::homeProperty(key.coopMedCode, key.idNo), CDSTmp);
    const QString codes = CDSTmp.isEmpty() ? QString() : CDSTmp.text(QStringLiteral("HomeProperty"));
    if (codes.isEmpty())
        return OrdinaryHousehold;
    m_statements.LoadDataSet(data::homeProperties(), *CDSHomeProperty);
    QString names;
    for (; !CDSHomeProperty->eof(); CDSHomeProperty->next()) {
        if (codes.contains(CDSHomeProperty->text(QStringLiteral("PropertyCode"))))
            names += CDSHomeProperty->text(QStringLiteral("PropertyName")) + u'/';
    }
    names.chop(1);
    return names;
}

void PrintedDocuments::PrintApprovalForm(const TdxTreeList &grid, int billType, const PrintSettings &settings)
{
    if (!grid.focusedNode())
        return;
    const data::RecordKey key = forms::RecordColumns(grid).key(grid.focusedNode());
    data::ApprovalTexts texts;
    texts.limit = limitText(cell(grid, "LimitDef"));
    const QString formula = cell(grid, "ExpressionsID");
    RMReport2->LoadFromFile(templatePath(FormTemplate));
    const QString prefix = data::approvalTablePrefix(billType);

    m_statements.LoadDataSet(data::formulaName(formula), CDSTmp);
    texts.formula = CDSTmp.isEmpty() ? QString() : CDSTmp.text(QStringLiteral("ExpressionsName"));
    // Asked for the summary that the form prints; the amount itself stands in the settlement.
    m_settlement.QueryFreeFee(settings.route, key, billType);
    texts.printInfo = m_settlement.printInfo();
    m_statements.LoadDataSet(data::approvalForm(prefix, key, texts), *CDSPrint);
    m_statements.LoadDataSet(data::settlementFees(prefix, key), *CDSPrintFee);
    m_statements.LoadDataSet(data::formFeeTypes(data::lengthFunction(settings.connStyle)), CDSTmp);
    RMReport2->ShowReport();
}

void PrintedDocuments::RMReport2GetValue(const QString &name, QVariant &value)
{
    if (!name.startsWith(u'F'))
        return;
    if (isHeaderAmount(name))
        throw std::runtime_error(QStringLiteral("没有取到这次住院的结算数据，不能打印。请刷新后再试。").toStdString());
    const int number = values::parseInteger(name.right(2));
    if (CDSTmp.isEmpty())
        return;
    CDSTmp.first();
    for (int row = 1; row < number && row < CDSTmp.recordCount(); ++row) // beyond the list: its last row
        CDSTmp.next();
    const QString kind = name.chopped(2);
    if (kind.toUpper() == QStringLiteral("FTYPE")) {
        value = CDSTmp.text(QStringLiteral("FeeTypeName"));
        return;
    }
    CDSPrintFee->setFiltered(false);
    CDSPrintFee->setFilter(data::settlementFeeFilter(CDSTmp.text(QStringLiteral("FeeTypeCode"))));
    CDSPrintFee->setFiltered(true); // and stays so until the next variable
    if (CDSPrintFee->isEmpty())
        return;
    const double canFreeFee = CDSPrintFee->number(QStringLiteral("CanFreeFee"));
    const double fee = CDSPrintFee->number(QStringLiteral("Fee"));
    if (kind == QStringLiteral("FCFee"))
        value = canFreeFee;
    else if (kind == QStringLiteral("FUFee"))
        value = fee - canFreeFee;
    else if (kind == QStringLiteral("FTFee"))
        value = fee;
}

} // namespace print

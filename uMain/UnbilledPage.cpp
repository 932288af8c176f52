// SPDX-License-Identifier: MIT
#include "uMain/UnbilledPage.h"

#include "data/captions.h"
#include "data/statements/unbilled.h"
#include "forms/hostformats.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/clientdataset.h"
#include "host/rightsscope.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/guard.h"
#include "uDjDetail/TfrmDjDetail.h"
#include "uMain/columns.h"
#include "uMain/trees.h"
#include "uMain/workbench.h"
#include "ui_UnbilledPage.h"

namespace {

constexpr toolkit::WindowsColour AdmittedToday = toolkit::windowsColour(0x5E, 0xCB, 0x4E);
constexpr toolkit::WindowsColour DischargedToday = toolkit::windowsColour(0xFF, 0x80, 0x00);

/// Like a bill list, but today's admissions and discharges win over the focus, and a discharge over an admission.
toolkit::CellDrawing unbilledDrawing(const TdxTreeList &grid)
{
    return [rows = forms::billListDrawing(), admitted = forms::columnPosition(grid, "IfInToday"),
            discharged = forms::columnPosition(grid, "IfOutToday")](
               const TdxTreeListNode &node, const TdxTreeListColumn &column, bool focused, toolkit::CellStyle &style) {
        rows(node, column, focused, style);
        if (forms::isTicked(node, admitted))
            style.background = AdmittedToday;
        if (forms::isTicked(node, discharged))
            style.background = DischargedToday;
    };
}

} // namespace

UnbilledPage::UnbilledPage(Workbench &workbench, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::UnbilledPage>())
    , m_workbench(workbench)
    , CDSBxDj(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("TabSheet1"));
    CDSBxDj->setObjectName(QStringLiteral("CDSBxDj"));
    setUpTree(*m_ui->dxTLDjOrgInfo, "dxTLDjOrgInfoName", "医疗机构");
    m_ui->dxTLBxDjDetail->setColumns(unbilledColumns());
    m_ui->dxTLBxDjDetail->setFooterVisible(true);
    m_ui->dxTLBxDjDetail->setCustomDrawCell(unbilledDrawing(*m_ui->dxTLBxDjDetail));
    m_ui->dxTLBxDjDetail->columnByName(QStringLiteral("dxTLBxDjDetailID"))
        ->setCustomDrawCell(forms::rowNumberDrawing());
    m_ui->splitterDj->setStretchFactor(1, 1);
    setFocusProxy(m_ui->dxTLBxDjDetail); // the first institution's patients are listed already

    toolkit::connectGuarded(m_ui->dxTLDjOrgInfo, &TdxTreeList::changeNode, this, QStringLiteral("载入病人记录"),
                            [this](const TdxTreeListNode &node) { dxTLDjOrgInfoChangeNode(node); });
    toolkit::connectGuarded(m_ui->dxTLBxDjDetail, &TdxTreeList::dblClick, this, QStringLiteral("查看费用信息"),
                            [this] { dxTLBxDjDetailDblClick(); });
    m_workbench.reload.unbilledTree = [this] { loadInstitutionTree(); };
}

UnbilledPage::~UnbilledPage() = default;

void UnbilledPage::start()
{
    loadInstitutionTree();
    m_ui->Panel1->setCaption(m_ui->LbZyDjInfo, data::registrationTitle());
    applyBackground(*m_ui->dxTLDjOrgInfo);
    m_ui->dxTLDjOrgInfo->setCustomDrawCell(forms::organisationTreeDrawing());
    applyBackground(*m_ui->dxTLBxDjDetail);
    ApplyMoneyFormat(*m_ui->dxTLBxDjDetail);
}

void UnbilledPage::loadInstitutionTree()
{
    // Without either of the two settings the statement built last is run as it stands; at start-up that is none.
    if (const auto list = host::institutionList(m_workbench.host().FuncStorage))
        m_workbench.statement = *list;
    m_workbench.LoadDataSet(*CDSBxDj);

    TdxTreeList &tree = *m_ui->dxTLDjOrgInfo;
    {
        const TreeListUpdate update(tree);
        tree.clearNodes();
        for (; !CDSBxDj->eof(); CDSBxDj->next()) {
            const QString code = CDSBxDj->text(QStringLiteral("OrgCode"));
            TdxTreeListNode node = tree.addNode();
            node.setValue(0, data::organisationCaption(code, CDSBxDj->text(QStringLiteral("OrgName"))));
            node.setValue(1, code);
            node.setImages(0, 0);
        }
    }
    dxTLDjOrgInfoChangeNode(tree.topNode());
}

void UnbilledPage::dxTLDjOrgInfoChangeNode(const TdxTreeListNode &node)
{
    TdxTreeList &grid = *m_ui->dxTLBxDjDetail;
    if (!node) {
        const TreeListUpdate update(grid);
        grid.clearNodes();
        showFooter();
        return;
    }
    m_selectedOrgCode = node.text(1);
    m_workbench.LoadDataSet(data::unbilledRecords(m_selectedOrgCode), *CDSBxDj);
    const TreeListUpdate update(grid);
    grid.clearNodes();
    grid.addRows(CDSBxDj->packet());
    showFooter();
}

void UnbilledPage::showFooter()
{
    TdxTreeList &grid = *m_ui->dxTLBxDjDetail;
    grid.setFooterText(forms::columnPosition(grid, "Coop"), QStringLiteral("共 %1 人次").arg(grid.count()));
}

void UnbilledPage::dxTLBxDjDetailDblClick()
{
    const TdxTreeListNode row = m_ui->dxTLBxDjDetail->focusedNode();
    if (!row)
        return;
    const auto value = [&](const char *suffix) {
        return row.text(forms::columnPosition(*m_ui->dxTLBxDjDetail, suffix));
    };
    showFeeDetail({m_selectedOrgCode, value("Coop"), value("IDNo"), value("DiagNo")}, window());
}

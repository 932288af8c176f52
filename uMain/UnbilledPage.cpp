// SPDX-License-Identifier: MIT
#include "uMain/UnbilledPage.h"

#include "data/captions.h"
#include "host/clientdataset.h"
#include "host/rightsscope.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/guard.h"
#include "toolkit/rowdrawing.h"
#include "uMain/columns.h"
#include "uMain/formats.h"
#include "uMain/trees.h"
#include "uMain/workbench.h"
#include "ui_UnbilledPage.h"

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
    m_ui->splitterDj->setStretchFactor(1, 1);

    toolkit::connectGuarded(m_ui->dxTLDjOrgInfo, &TdxTreeList::changeNode, this,
                            [this](const TdxTreeListNode &node) { dxTLDjOrgInfoChangeNode(node); });
    m_workbench.reload.unbilledTree = [this] { loadInstitutionTree(); };
}

UnbilledPage::~UnbilledPage() = default;

void UnbilledPage::start()
{
    loadInstitutionTree();
    m_ui->Panel1->setCaption(m_ui->LbZyDjInfo, data::registrationTitle());
    applyBackground(*m_ui->dxTLDjOrgInfo);
    m_ui->dxTLDjOrgInfo->setCustomDrawCell(toolkit::organisationTreeDrawing());
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
    m_selectedOrgCode = node ? node.text(1) : m_selectedOrgCode;
}

// SPDX-License-Identifier: MIT
#include "uMain/BillPage.h"

#include "data/captions.h"
#include "forms/hostformats.h"
#include "forms/keycheck.h"
#include "forms/recordcolumns.h"
#include "forms/rowdrawing.h"
#include "host/clientdataset.h"
#include "toolkit/TreeListUpdate.h"
#include "toolkit/guard.h"
#include "toolkit/messageboxes.h"
#include "toolkit/readabletext.h"
#include "uAddBill/TfrmAddBill.h"
#include "uDjDetail/TfrmDjDetail.h"
#include "uMain/BillChanges.h"
#include "uMain/BillNotes.h"
#include "uMain/billtrees.h"
#include "uMain/columns.h"
#include "uMain/menus.h"
#include "ui_BillPage.h"

#include <QMenu>

namespace {

const QString Title = QStringLiteral("确认");

bool lossConfirmed(QWidget *window, const QString &question)
{
    return toolkit::messageBoxes().askBeforeLoss(window, Title, question);
}

/// The records that follow a row and go before it, the nearest first.
std::vector<data::RecordKey> neighbours(const TdxTreeList &grid, const TdxTreeListNode &row)
{
    const forms::RecordColumns columns(grid);
    std::vector<data::RecordKey> keys;
    for (const int index : {row.index() + 1, row.index() - 1}) {
        if (const TdxTreeListNode beside = grid.node(index))
            keys.push_back(columns.key(beside));
    }
    return keys;
}

/// Focuses the first of the records that is listed.
void focusFirstOf(TdxTreeList &grid, const std::vector<data::RecordKey> &records)
{
    const forms::RecordColumns columns(grid);
    for (const data::RecordKey &record : records) {
        for (int i = 0; i < grid.count(); ++i) {
            if (columns.key(grid.node(i)) == record)
                return grid.setFocusedNode(grid.node(i));
        }
    }
}

} // namespace

BillPage::BillPage(Workbench &workbench, TClientDataSet &scratch, const BillPageKind &kind, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BillPage>())
    , m_workbench(workbench)
    , m_scratch(scratch)
    , m_kind(kind)
    , m_rows(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    m_notes = new BillNotes(*m_ui->tree, *this, *m_ui->totalFee,
                            {{"总费用", billnode::NotedFee}, {"可报销费用", billnode::NotedCanFreeFee}});
    applyNames();
    setUpBillTree(*m_ui->tree, m_kind.treeColumn);
    setUpGrid();
    setUpMenu();
    toolkit::keepReadable(*m_ui->count);
    setFocusProxy(m_ui->tree);
    m_ui->splitter->setStretchFactor(1, 1);
    connectHandlers();
    m_workbench.reload.*m_kind.ownTree = [this] { loadBillTree(); };
}

BillPage::~BillPage() = default;

void BillPage::applyNames()
{
    const std::vector<std::pair<QObject *, const char *>> components = {
        {this, m_kind.page},
        {m_rows, m_kind.dataSet},
        {m_ui->tree, m_kind.tree},
        {m_ui->grid, m_kind.grid},
        {m_ui->captionPanel, m_kind.captionPanel},
        {m_ui->captionLabel, m_kind.caption},
        {m_ui->count, m_kind.count},
        {m_ui->totalFee, m_kind.totalFee},
        {m_ui->canFreeFee, m_kind.canFreeFee},
        {m_ui->totalsPanel, m_kind.totalsPanel},
        {m_ui->cancelButton, m_kind.cancelButton},
        {m_ui->uploadButton, m_kind.uploadButton},
        {m_ui->addButton, m_kind.addButton},
        {m_ui->exitButton, m_kind.exitButton},
    };
    for (const auto &[component, name] : components)
        component->setObjectName(QString::fromUtf8(name));
    m_ui->cancelButton->setProperty("tag", m_kind.cancelTag);
    m_ui->addButton->setProperty("tag", m_kind.addTag);
}

void BillPage::setUpGrid()
{
    std::vector<toolkit::ColumnDefinition> columns = billColumns();
    m_columnNames.reserve(columns.size());
    for (toolkit::ColumnDefinition &column : columns) {
        const std::string suffix = column.kind == toolkit::ColumnKind::Check ? m_kind.interfaceColumn : column.name;
        m_columnNames.push_back(m_kind.grid + suffix);
        column.name = m_columnNames.back().c_str();
    }
    m_ui->grid->setColumns(columns);
    m_ui->grid->setFixedBand(BillFixedBand);
}

void BillPage::setUpMenu()
{
    m_billMenu = createMenu(this, *m_ui->tree, m_kind.menu,
                            {{m_kind.reportItem, "整批上报制单", m_kind.reportTag},
                             {m_kind.cancelItem, "整批取消制单", m_kind.cancelTag},
                             {m_kind.uploadItem, "整批数据上传"}});
}

void BillPage::connectHandlers()
{
    using toolkit::connectGuarded;
    const auto item = [this](const char *name) { return findChild<QAction *>(QString::fromUtf8(name)); };
    connectGuarded(m_ui->tree, &TdxTreeList::changeNode, this, QStringLiteral("载入制单记录"),
                   [this](const TdxTreeListNode &node) { changeNode(node); });
    connectGuarded(m_ui->grid, &TdxTreeList::dblClick, this, QStringLiteral("查看费用信息"),
                   [this] { showFeeDetail(*m_ui->grid); });
    connectGuarded(item(m_kind.reportItem), &QAction::triggered, this, QStringLiteral("整批上报制单"),
                   [this] { reportBill(); });
    connectGuarded(item(m_kind.cancelItem), &QAction::triggered, this, QStringLiteral("整批取消制单"),
                   [this] { cancelBill(); });
    connectGuarded(m_ui->cancelButton, &QPushButton::clicked, this, QStringLiteral("单笔取消制单"),
                   [this] { cancelRecord(); });
    connectGuarded(m_ui->addButton, &QPushButton::clicked, this, QStringLiteral("添加单据"), [this] { addRecords(); });
    connectGuarded(m_ui->exitButton, &QPushButton::clicked, this, QStringLiteral("退出"),
                   [this] { Q_EMIT exitRequested(); });
}

void BillPage::start()
{
    loadBillTree();
    m_ui->captionPanel->setCaption(m_ui->captionLabel, data::reimbursementTitle());
    applyBackground(*m_ui->tree);
    m_ui->tree->setCustomDrawCell(forms::organisationTreeDrawing());
    applyBackground(*m_ui->grid);
    m_ui->grid->setCustomDrawCell(forms::billListDrawing());
    m_ui->grid->column(0)->setCustomDrawCell(forms::rowNumberDrawing());
    ApplyMoneyFormat(*m_ui->grid);
}

const TdxTreeList &BillPage::tree() const
{
    return *m_ui->tree;
}

void BillPage::loadBillTree()
{
    m_workbench.LoadDataSet(data::billsOfPage(m_kind.spelling, m_workbench.session.OrgCode), *m_rows);
    rebuildBillTree(*m_ui->tree, *m_rows, [this](TdxTreeListNode &bill) {
        bill.setValue(billnode::Text, m_rows->text(QStringLiteral("WriteDate")));
        bill.setValue(billnode::NotedFee, m_rows->text(QStringLiteral("Fee")));
        bill.setValue(billnode::NotedCanFreeFee, m_rows->text(QStringLiteral("CanFreeFee")));
        if (!m_kind.billsCarryFees)
            return;
        bill.setValue(billnode::Fee, m_rows->number(QStringLiteral("Fee")));
        bill.setValue(billnode::CanFreeFee, m_rows->number(QStringLiteral("CanFreeFee")));
    });
    changeNode(m_ui->tree->topNode());
}

void BillPage::changeNode(const TdxTreeListNode &node)
{
    m_notes->setChosen({});
    m_ui->count->clear();
    m_ui->totalFee->setValue(0);
    m_ui->canFreeFee->setValue(0);
    const bool isBill = isBillNode(node);
    if (node)
        m_ui->tree->setPopupMenu(isBill ? m_billMenu : nullptr);
    {
        const TreeListUpdate update(*m_ui->grid);
        m_ui->grid->clearNodes();
    }
    if (isBill)
        loadRecords(node);
}

void BillPage::loadRecords(const TdxTreeListNode &bill)
{
    m_workbench.LoadDataSet(data::recordsOfBill(m_kind.spelling, billKeyOf(bill)), *m_rows);
    double totalFee = 0;
    double canFreeFee = 0;
    {
        const TreeListUpdate update(*m_ui->grid);
        m_ui->grid->addRows(m_rows->packet());
    }
    for (; !m_rows->eof(); m_rows->next()) {
        totalFee += m_rows->number(QStringLiteral("TotalFee"));
        canFreeFee += m_rows->number(QStringLiteral("CanFreeFee"));
    }
    m_ui->count->setText(QString::number(m_ui->grid->count()));
    m_ui->totalFee->setValue(totalFee);
    m_ui->canFreeFee->setValue(canFreeFee);
    bill.setValue(billnode::Records, m_ui->grid->count());
    bill.setValue(billnode::NotedFee, totalFee);
    bill.setValue(billnode::NotedCanFreeFee, canFreeFee);
    m_notes->setChosen(bill);
}

void BillPage::reportBill()
{
    if (!toolkit::messageBoxes().ask(this, Title, QStringLiteral("您确认上报此笔制单记录吗？")))
        return;
    // The bill is that of the page in front, whichever page's menu was used; the menu's page is reloaded.
    const TdxTreeList *tree = m_workbench.activeBillTree();
    const TdxTreeListNode bill = tree != nullptr ? tree->focusedNode() : TdxTreeListNode();
    if (isBillNode(bill))
        BillChanges(m_workbench, m_scratch, m_kind, this).report(billKeyOf(bill));
}

void BillPage::cancelBill()
{
    if (!lossConfirmed(this, QStringLiteral("您确认取消此笔制单记录吗？")))
        return;
    const TdxTreeListNode bill = m_ui->tree->focusedNode();
    if (isBillNode(bill))
        BillChanges(m_workbench, m_scratch, m_kind, this).cancel(billKeyOf(bill));
}

void BillPage::cancelRecord()
{
    if (keyIsRefused() || !lossConfirmed(this, QString::fromUtf8(m_kind.cancelRecordQuestion)))
        return;
    const bool isLastRecord = m_rows->recordCount() == 1;
    const TdxTreeListNode bill = m_ui->tree->focusedNode();
    const TdxTreeListNode row = m_ui->grid->focusedNode();
    if (!isBillNode(bill) || !row)
        return;
    BillChanges(m_workbench, m_scratch, m_kind, this)
        .takeOut(billKeyOf(bill), forms::RecordColumns(*m_ui->grid).key(row), isLastRecord,
                 [this, beside = neighbours(*m_ui->grid, row)] {
                     changeNode(m_ui->tree->focusedNode());
                     focusFirstOf(*m_ui->grid, beside);
                 });
}

bool BillPage::keyIsRefused()
{
    const TdxTreeListNode row = m_ui->grid->focusedNode();
    const QString refusal = row ? forms::refusalOf(*m_ui->grid, row) : QString();
    if (!refusal.isEmpty())
        m_workbench.host().FuncStorage.Alert(refusal);
    return !refusal.isEmpty();
}

void BillPage::addRecords()
{
    const TdxTreeListNode bill = m_ui->tree->focusedNode();
    if (!m_ui->grid->focusedNode() || !isBillNode(bill)) // an empty bill cannot be extended from here
        return;
    {
        TfrmAddBill dialog(billKeyOf(bill), window());
        dialog.ShowModal();
    }
    m_workbench.reload.unbilledTree();
    m_workbench.reload.candidates();
    changeNode(m_ui->tree->focusedNode());
}

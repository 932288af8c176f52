// SPDX-License-Identifier: MIT
#include "uMain/BillPage.h"

#include "data/captions.h"
#include "host/clientdataset.h"
#include "toolkit/guard.h"
#include "toolkit/rowdrawing.h"
#include "uMain/columns.h"
#include "uMain/formats.h"
#include "uMain/menus.h"
#include "uMain/trees.h"
#include "ui_BillPage.h"

#include <QMenu>

BillPage::BillPage(Workbench &workbench, const BillPageNames &names, QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::BillPage>())
    , m_workbench(workbench)
    , m_names(names)
    , m_bills(new TClientDataSet(this))
{
    m_ui->setupUi(this);
    applyNames();
    setUpTree(*m_ui->tree, m_names.treeColumn);
    setUpGrid();
    m_ui->splitter->setStretchFactor(1, 1);
    createMenu(this, m_names.menu,
               {{m_names.reportItem, "整批上报制单", m_names.reportTag},
                {m_names.cancelItem, "整批取消制单", m_names.cancelTag},
                {m_names.uploadItem, "整批数据上传"}});
    toolkit::connectGuarded(m_ui->exitButton, &QPushButton::clicked, this, [this] { Q_EMIT exitRequested(); });
}

BillPage::~BillPage() = default;

void BillPage::applyNames()
{
    const std::vector<std::pair<QObject *, const char *>> components = {
        {this, m_names.page},
        {m_bills, m_names.dataSet},
        {m_ui->tree, m_names.tree},
        {m_ui->grid, m_names.grid},
        {m_ui->captionPanel, m_names.captionPanel},
        {m_ui->captionLabel, m_names.caption},
        {m_ui->count, m_names.count},
        {m_ui->totalFee, m_names.totalFee},
        {m_ui->canFreeFee, m_names.canFreeFee},
        {m_ui->totalsPanel, m_names.totalsPanel},
        {m_ui->cancelButton, m_names.cancelButton},
        {m_ui->uploadButton, m_names.uploadButton},
        {m_ui->addButton, m_names.addButton},
        {m_ui->exitButton, m_names.exitButton},
    };
    for (const auto &[component, name] : components)
        component->setObjectName(QString::fromUtf8(name));
    m_ui->cancelButton->setProperty("tag", m_names.cancelTag);
    m_ui->addButton->setProperty("tag", m_names.addTag);
}

void BillPage::setUpGrid()
{
    std::vector<toolkit::ColumnDefinition> columns = billColumns();
    m_columnNames.reserve(columns.size());
    for (toolkit::ColumnDefinition &column : columns) {
        const std::string suffix = column.kind == toolkit::ColumnKind::Check ? m_names.interfaceColumn : column.name;
        m_columnNames.push_back(m_names.grid + suffix);
        column.name = m_columnNames.back().c_str();
    }
    m_ui->grid->setColumns(columns);
    m_ui->grid->setFixedBand(BillFixedBand);
}

void BillPage::start()
{
    m_ui->captionPanel->setCaption(m_ui->captionLabel, data::reimbursementTitle());
    applyBackground(*m_ui->tree);
    m_ui->tree->setCustomDrawCell(toolkit::organisationTreeDrawing());
    applyBackground(*m_ui->grid);
    m_ui->grid->setCustomDrawCell(toolkit::billListDrawing());
    m_ui->grid->column(0)->setCustomDrawCell(toolkit::rowNumberDrawing());
    ApplyMoneyFormat(*m_ui->grid);
}

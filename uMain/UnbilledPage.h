// SPDX-License-Identifier: MIT
// The page "未制单病人查询".
#pragma once

#include <QWidget>

#include <memory>

class TClientDataSet;
class TdxTreeListNode;
class Workbench;

namespace Ui {
class UnbilledPage;
}

/// On the left the institutions with unbilled records, on the right the records of the chosen one.
class UnbilledPage : public QWidget {
    Q_OBJECT

public:
    explicit UnbilledPage(Workbench &workbench, QWidget *parent = nullptr);
    ~UnbilledPage() override;

    /// Loads the page and dresses it; part of the form's start-up.
    void start();

    /// Fills the tree through the rights filter and lists the first institution's records.
    void loadInstitutionTree();

private:
    void dxTLDjOrgInfoChangeNode(const TdxTreeListNode &node);
    void dxTLBxDjDetailDblClick();
    void showFooter();

    std::unique_ptr<Ui::UnbilledPage> m_ui;
    Workbench &m_workbench;
    TClientDataSet *CDSBxDj;
    QString m_selectedOrgCode; ///< of the tree node chosen last
};

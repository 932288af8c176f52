// SPDX-License-Identifier: MIT
// The pages "上报制单" and "退单制单": one mechanism, two kinds.
#pragma once

#include "uMain/billpagekinds.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class BillNotes;
class QMenu;
class TClientDataSet;
class TdxTreeList;
class TdxTreeListNode;
class Workbench;

namespace Ui {
class BillPage;
}

/// On the left the bills of the user's institution, on the right the records of the chosen one.
class BillPage : public QWidget {
    Q_OBJECT

public:
    /// `scratch` is the form's data set for single questions to the database; borrowed.
    BillPage(Workbench &workbench, TClientDataSet &scratch, const BillPageKind &kind, QWidget *parent = nullptr);
    ~BillPage() override;

    /// Loads the page and dresses it; part of the form's start-up.
    void start();

    /// Rebuilds the tree; the grid and the totals are empty afterwards.
    void loadBillTree();

    [[nodiscard]] const TdxTreeList &tree() const;

Q_SIGNALS:
    void exitRequested();

private:
    void applyNames();
    void setUpGrid();
    void setUpMenu();
    void connectHandlers();
    void changeNode(const TdxTreeListNode &node);
    void loadRecords(const TdxTreeListNode &bill);

    void reportBill();
    void cancelBill();
    void cancelRecord();
    [[nodiscard]] bool keyIsRefused();
    void addRecords();

    std::unique_ptr<Ui::BillPage> m_ui;
    Workbench &m_workbench;
    TClientDataSet &m_scratch;
    const BillPageKind &m_kind;
    std::vector<std::string> m_columnNames; // what the columns' definitions point to
    TClientDataSet *m_rows; // the bills while the tree is built, then the records of the chosen bill
    BillNotes *m_notes = nullptr;
    QMenu *m_billMenu = nullptr;
};

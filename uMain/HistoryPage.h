// SPDX-License-Identifier: MIT
// The page "历史制单查询".
#pragma once

#include <QWidget>

#include <functional>
#include <memory>

class BillNotes;
class TClientDataSet;
class TdxTreeList;
class TdxTreeListNode;
class Workbench;

namespace Ui {
class HistoryPage;
}

/// On the left every bill of the user's institution, current and archived, on the right the records of the chosen one.
class HistoryPage : public QWidget {
    Q_OBJECT

public:
    explicit HistoryPage(Workbench &workbench, QWidget *parent = nullptr);
    ~HistoryPage() override;

    /// Loads the page and dresses it; part of the form's start-up.
    void start();

    /// Rebuilds the tree; the grid and the totals are empty afterwards.
    void LoadOldBills();

private:
    void dxTLOldOrgChangeNode(const TdxTreeListNode &node);
    void dxTLOldBillDblClick();
    /// The menu item prints the document of the focused record; it asks the focused tree node for its type.
    void connectReprint(const char *item, const std::function<void(const TdxTreeList &, int)> &document);

    std::unique_ptr<Ui::HistoryPage> m_ui;
    Workbench &m_workbench;
    TClientDataSet *CDSOld;
    BillNotes *m_notes = nullptr;
};

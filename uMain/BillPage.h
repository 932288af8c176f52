// SPDX-License-Identifier: MIT
// The pages "上报制单" and "退单制单": one mechanism, two sets of names.
#pragma once

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

class TClientDataSet;
class Workbench;

namespace Ui {
class BillPage;
}

/// Component names of one of the two pages.
struct BillPageNames {
    const char *page;
    const char *tree;
    const char *treeColumn;
    const char *grid;
    const char *interfaceColumn; ///< behind the grid's name
    const char *captionPanel;
    const char *caption;
    const char *dataSet;
    const char *count;
    const char *totalFee;
    const char *canFreeFee;
    const char *totalsPanel;
    const char *cancelButton;
    const char *uploadButton;
    const char *addButton;
    const char *exitButton;
    int cancelTag; ///< function numbers, see uMain/rights.h
    int addTag;
    const char *menu;
    const char *reportItem;
    int reportTag;
    const char *cancelItem;
    const char *uploadItem;
};

extern const BillPageNames ReportedPageNames;
extern const BillPageNames ReturnedPageNames;

/// On the left the bills of the user's institution, on the right the records of the chosen one.
class BillPage : public QWidget {
    Q_OBJECT

public:
    BillPage(Workbench &workbench, const BillPageNames &names, QWidget *parent = nullptr);
    ~BillPage() override;

    /// Loads the page and dresses it; part of the form's start-up.
    void start();

Q_SIGNALS:
    void exitRequested();

private:
    void applyNames();
    void setUpGrid();

    std::unique_ptr<Ui::BillPage> m_ui;
    Workbench &m_workbench;
    const BillPageNames &m_names;
    std::vector<std::string> m_columnNames; // what the columns' definitions point to
    TClientDataSet *m_bills;
};

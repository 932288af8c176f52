// SPDX-License-Identifier: MIT
// The page "历史制单查询".
#pragma once

#include <QWidget>

#include <memory>

class TClientDataSet;
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

private:
    std::unique_ptr<Ui::HistoryPage> m_ui;
    Workbench &m_workbench;
    TClientDataSet *CDSOld;
};

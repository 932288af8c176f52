// SPDX-License-Identifier: MIT
// The page "报销制单".
#pragma once

#include <QWidget>

#include <memory>

class TClientDataSet;
class Workbench;

namespace Ui {
class BillMakingPage;
}

/// Settled records without a bill; the clerk ticks some, the totals follow, and the header makes them a bill.
class BillMakingPage : public QWidget {
    Q_OBJECT

public:
    /// `scratch` is the form's data set for single questions to the database; borrowed.
    BillMakingPage(Workbench &workbench, TClientDataSet &scratch, QWidget *parent = nullptr);
    ~BillMakingPage() override;

    /// Loads the page and dresses it; part of the form's start-up.
    void start();

    [[nodiscard]] bool hasTicks() const;

    /// Rebuilds the candidates and resets the totals, but for "报销费用：", which the next tick brings up to date.
    void LoadUpCandidates();

Q_SIGNALS:
    void exitRequested();

private:
    void connectHandlers();
    void CalcUpTotals();
    void SetAllChecked(int position, bool checked);
    void dxTLUpCheckToggleClick(const QString &newState);
    void edtOrgCodeKeyDown(int virtualKey);
    void btnSaveClick();
    void btnBackClick();
    [[nodiscard]] bool headerIsComplete();
    [[nodiscard]] bool keysAreRefused();

    std::unique_ptr<Ui::BillMakingPage> m_ui;
    Workbench &m_workbench;
    TClientDataSet &m_scratch;
    TClientDataSet *CDSUp;
    int m_checkColumn = 0;
};

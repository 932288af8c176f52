// SPDX-License-Identifier: MIT
// The dialog "添加制单": more records for a bill that exists.
#pragma once

#include "data/billkey.h"

#include <QDialog>

#include <memory>

class TClientDataSet;

namespace Ui {
class TfrmAddBill;
}

class TfrmAddBill : public QDialog {
    Q_OBJECT

public:
    TfrmAddBill(data::BillKey bill, QWidget *parent);
    ~TfrmAddBill() override;

    /// Loads the candidates, shows the dialog and returns when it is closed. A failing query reaches the caller, and
    /// the dialog is not shown. Whoever opened it reloads what may have changed.
    void ShowModal();

private:
    void FormShow();
    void LoadAddCandidates();
    void CountAddTotals();
    void dxTLUpCheckToggleClick(const QString &newState);
    void btnSaveClick();

    std::unique_ptr<Ui::TfrmAddBill> m_ui;
    data::BillKey m_bill;
    TClientDataSet *CDSAdd;
    int m_checkColumn = 0;
};

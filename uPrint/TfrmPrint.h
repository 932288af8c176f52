// SPDX-License-Identifier: MIT
// The dialog "打印费用清单": the itemised fee list of one stay.
#pragma once

#include "data/recordkey.h"
#include "host/datactl.h"
#include "host/funcstorage.h"

#include <QDate>
#include <QDialog>

#include <memory>

class TClientDataSet;
class TRMDBDataSet;
class TRMReport;
class TdxTreeList;

namespace Ui {
class TfrmPrint;
}

/// The stay, and the dates that the dialog begins with.
struct FeeListStay {
    data::RecordKey key;
    QDate inDate;
    QDate outDate;
    int billType = 1; ///< 1 tables in use, 2 archive
};

class TfrmPrint : public QDialog {
    Q_OBJECT

public:
    TfrmPrint(FeeListStay stay, QWidget *parent);
    ~TfrmPrint() override;

    /// Creates the dialog's own host objects, shows it and returns when it is closed.
    void ShowModal();

private:
    void FormShow();
    void btnPrintClick();
    [[nodiscard]] bool confirmDates();
    void loadRows();
    void RMReport1GetValue(const QString &name, QVariant &value);

    std::unique_ptr<Ui::TfrmPrint> m_ui;
    FeeListStay m_stay;
    host::DataCtlProxy DataCtl; // its own, not the form's shared ones
    host::FuncStorageProxy FuncStorage;
    TClientDataSet *CDSMain;
    TClientDataSet *CDSDetail;
    TRMDBDataSet *RMDBDataSetDetail;
    TRMReport *RMReport1;
};

/// Opens the dialog for the grid's focused row, whose columns are named after the grid; does nothing without one.
/// Errors reach the caller.
void PrintFeeList(const TdxTreeList &grid, int billType);

// SPDX-License-Identifier: MIT
// The dialog "明细信息": the fees of one record in use.
#pragma once

#include "data/recordkey.h"
#include "uDjDetail/FeeDetailDialog.h"

namespace Ui {
class TfrmDjDetail;
}

class TfrmDjDetail : public FeeDetailDialog {
    Q_OBJECT

public:
    TfrmDjDetail(data::RecordKey record, QWidget *parent);
    ~TfrmDjDetail() override;

protected:
    [[nodiscard]] QString feeTypeStatement() const override;
    [[nodiscard]] QString feeItemStatement() const override;
    [[nodiscard]] QString itemFilter() const override;

private:
    std::unique_ptr<Ui::TfrmDjDetail> m_ui;
    data::RecordKey m_record;
};

/// Shows the fees of the grid's focused record, named by the grid's own key columns; does nothing without one. Errors
/// reach the caller.
void showFeeDetail(const TdxTreeList &grid);
/// The same for a record whose key the caller knows.
void showFeeDetail(const data::RecordKey &record, QWidget *parent);

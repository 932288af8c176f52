// SPDX-License-Identifier: MIT
// The dialog "历史明细": the fees of one record of the history, with what the reviews struck out.
#pragma once

#include "data/recordkey.h"
#include "uDjDetail/FeeDetailDialog.h"

namespace Ui {
class TfrmDjOld;
}

/// Where a record of the history stands, as the history tree's values say.
struct HistoryRecord {
    data::RecordKey key;
    QString billType; ///< "1" tables in use, "2" archive
    QString billStatus; ///< CheckStatus of its bill
};

class TfrmDjOld : public FeeDetailDialog {
    Q_OBJECT

public:
    TfrmDjOld(HistoryRecord record, QWidget *parent);
    ~TfrmDjOld() override;

protected:
    [[nodiscard]] QString feeTypeStatement() const override;
    [[nodiscard]] QString feeItemStatement() const override;
    [[nodiscard]] QString itemFilter() const override;
    /// A deduction column shows once the review that sets it has taken place.
    void loaded() override;

private:
    std::unique_ptr<Ui::TfrmDjOld> m_ui;
    HistoryRecord m_record;
};

/// Shows the record's fees. Errors reach the caller.
void showHistoryDetail(const HistoryRecord &record, QWidget *parent);

// SPDX-License-Identifier: MIT
// The dialog "添加制单" as its tests open it.
#pragma once

#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"
#include "uAddBill/TfrmAddBill.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include <functional>
#include <optional>

/// Adds to bill 3 of 42990102, which has one record (10.00, 8.00).
class AddBillTest : public testing::Test {
protected:
    using Work = std::function<void(QWidget &dialog)>;

    /// Shows the dialog with its list loaded, does the work in it and closes it if the work has not.
    void inDialog(const Work &work, const Desk::Options &options = Desk::Options(), const char *fixture = nullptr)
    {
        m_desk.emplace(options);
        if (fixture != nullptr)
            m_desk->sqlite(fixture);
        m_desk->open();
        (void)said();
        const ModalVisit visit(QStringLiteral("frmAddBill"), work);
        TfrmAddBill({QStringLiteral("42990102"), QStringLiteral("3")}, &m_desk->form()).ShowModal();
    }

    [[nodiscard]] QStringList said() { return m_desk->conversation().take(); }
    [[nodiscard]] static TdxTreeList &grid(QWidget &dialog) { return hands::find<TdxTreeList>(dialog, "dxTLUp"); }
    static void tick(QWidget &dialog, std::initializer_list<int> rows)
    {
        for (const int row : rows)
            hands::clickCell(grid(dialog), row, "dxTLUpCheck");
    }
    [[nodiscard]] static QString totals(const QWidget &dialog)
    {
        QStringList texts;
        for (const char *name : {"edtUpNum", "dxCEUpTotal", "dxCEUpCanFee", "dxCEUpFreeFee"})
            texts.append(hands::find<QLineEdit>(dialog, name).text());
        return texts.join(QLatin1Char('|'));
    }
    [[nodiscard]] QStringList bill() const
    {
        return m_desk->rows("select Fee,CanFreeFee,CheckStatus from o_CbZyZdb where BillCode='42990102' and BillNo=3");
    }

    std::optional<Desk> m_desk;
};

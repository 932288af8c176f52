// SPDX-License-Identifier: MIT
// What the fee detail dialogs of current and of historical records have in common.
#pragma once

#include "toolkit/celldrawing.h"

#include <QDialog>
#include <QString>

#include <memory>

class QRadioButton;
class QSplitter;
class TClientDataSet;
class TdxTreeList;

/// On the left a record's fees by type, on the right its items, filtered in place: nothing is asked of the database
/// after the dialog has opened. Shared host objects are used.
class FeeDetailDialog : public QDialog {
    Q_OBJECT

public:
    explicit FeeDetailDialog(QWidget *parent);

    /// Loads both lists, shows the dialog and returns when it is closed. A failing query reaches the caller, and the
    /// dialog is not shown.
    void ShowModal();

protected:
    /// Borrowed from the derived dialog's form, the splitter with a grid on each side; call once, after its set-up.
    void takeGrids(QSplitter &splitter, TdxTreeList &feeTypes, TdxTreeList &feeItems);
    /// Refills the items whenever this choice is taken.
    void takeChoice(QRadioButton &choice);
    /// The choice that shows the items of the focused fee type.
    void takeLocalChoice(QRadioButton &choice);

    [[nodiscard]] virtual QString feeTypeStatement() const = 0;
    [[nodiscard]] virtual QString feeItemStatement() const = 0;
    /// Condition on the loaded items by the choice taken; empty for all.
    [[nodiscard]] virtual QString itemFilter() const = 0;
    /// Called at the end of loading.
    virtual void loaded() { }

    /// Code of the focused fee type; empty when none is focused.
    [[nodiscard]] QString focusedFeeTypeCode() const;

private:
    void FormShow();
    /// The types get what they need, but no more than a third while the items need what is left.
    void divideRoom();
    void fillFeeTypes();
    void fillFeeItems();

    QSplitter *m_splitter = nullptr;
    TdxTreeList *m_feeTypes = nullptr;
    TdxTreeList *m_feeItems = nullptr;
    QRadioButton *m_localChoice = nullptr;
    TClientDataSet *CDSFeeType;
    TClientDataSet *CDSFeeInfo;
};

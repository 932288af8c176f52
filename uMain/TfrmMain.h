// SPDX-License-Identifier: MIT
// The module's main form.
#pragma once

#include "uMain/workbench.h"

#include <QWidget>

class BillMakingPage;
class BillPage;
class HistoryPage;
class PageControl;
class TClientDataSet;
class UnbilledPage;

/// Five pages over one workbench. Until it is first shown the form contacts no host object.
class TfrmMain : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool unsavedInput READ hasUnsavedInput)

public:
    explicit TfrmMain(QWidget *parent = nullptr);
    ~TfrmMain() override;

    /// For the host, before it shows the form anew: whether that would throw the clerk's ticks away.
    [[nodiscard]] bool hasUnsavedInput() const;
    [[nodiscard]] const Session &session() const noexcept { return m_workbench.session; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// Everything that happens at a showing, each time anew, in a fixed order; an error ends it where it stands and
    /// reaches the host's error display.
    void FormShow();
    void connectPrinting();
    void readConnStyle();
    void readParameters();
    void testSettlementRoute();

    Workbench m_workbench;
    TClientDataSet *CDSTmp;
    PageControl *PageControl1;
    UnbilledPage *m_unbilled;
    BillMakingPage *m_billMaking;
    BillPage *m_reported;
    BillPage *m_returned;
    HistoryPage *m_history;
};

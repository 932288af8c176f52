// SPDX-License-Identifier: MIT
// The stations of the tour, in the order in which they are walked.
#pragma once

#include "vortaq/app/session.h"
#include "vortaq/app/tour/guide.h"

#include <QModelIndex>

#include <span>

class QAbstractItemView;

namespace vortaq {

/// What a step works with.
struct TourScene {
    Guide &guide;
    Session &session;
};

struct TourStep {
    const char *name; ///< in UTF-8, for messages
    void (*walk)(TourScene &scene);
};

[[nodiscard]] std::span<const TourStep> tourSteps();

// Each station throws TourError when something is not as it should be.
void showUnbilledPage(TourScene &scene);
void showBillMakingPage(TourScene &scene);
void openFeeDetail(TourScene &scene);
void tickCandidates(TourScene &scene);
void lookInstitutionUp(TourScene &scene);
void saveBill(TourScene &scene);
void showReportedPage(TourScene &scene);
void addRecord(TourScene &scene);
void takeRecordOut(TourScene &scene);
void reportBill(TourScene &scene);
void cancelBill(TourScene &scene);
void showReturnedPage(TourScene &scene);
void reportAgain(TourScene &scene);
void showHistoryPage(TourScene &scene);
void printSettlementSheet(TourScene &scene);
void printApprovalForm(TourScene &scene);
void printFeeLists(TourScene &scene);

// What several stations do.

/// Opens a page of the form by a click on its tab. `page` is the page's component name.
void choosePage(Guide &guide, const QString &page);
/// Clicks the first bill below the first institution of a tree and returns it.
QModelIndex chooseFirstBill(Guide &guide, QAbstractItemView &tree);
void requireRows(const QAbstractItemView &grid);
/// Opens the detail dialog of a grid's first row by a double click, takes its picture and closes it.
void showDetail(Guide &guide, QAbstractItemView &grid, const QString &caption);
/// Waits for the hint, takes a picture and waits until it is gone.
void takeHint(Guide &guide, const QString &text, const QString &caption);

} // namespace vortaq

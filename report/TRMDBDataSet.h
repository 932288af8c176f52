// SPDX-License-Identifier: MIT
// Binds a client data set to a report.
#pragma once

#include <QObject>

class TClientDataSet;

/// A report reads the rows that the data set shows when the report begins.
class TRMDBDataSet : public QObject {
    Q_OBJECT

public:
    explicit TRMDBDataSet(QObject *parent = nullptr);

    /// Borrowed; it must live as long as reports are shown from it. Null unbinds.
    void setDataSet(TClientDataSet *dataSet) noexcept { m_dataSet = dataSet; }
    [[nodiscard]] TClientDataSet *dataSet() const noexcept { return m_dataSet; }

private:
    TClientDataSet *m_dataSet = nullptr;
};

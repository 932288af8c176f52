// SPDX-License-Identifier: MIT
// The report component: a template, the data behind it, and a look at the result.
#pragma once

#include "report/template/template.h"
#include "report/values/evaluator.h"

#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

class TRMDBDataSet;
class TClientDataSet;

/// A name in the template is a field of the data set, or else of a header's first row, or else a variable, which the
/// get-value callback may answer. Errors are std::runtime_error (TemplateError for what is wrong in a template), and
/// whatever the callback throws passes.
class TRMReport : public QObject {
    Q_OBJECT

public:
    explicit TRMReport(QObject *parent = nullptr);

    /// Rows of the template's list; of a form without a list the first row is printed. Borrowed; null unbinds.
    void setDataSet(TRMDBDataSet *dataSet);
    /// Further data sets of one row each, for what stands around the list. Borrowed.
    void setHeaders(const std::vector<TClientDataSet *> &headers);
    /// Asked for every variable; the value it gets is the report's own and may be left as it is.
    void setOnGetValue(report::GetValue getValue) { m_getValue = std::move(getValue); }

    /// Reads a template in place of the one before. After an error the one before is still there.
    void LoadFromFile(const QString &path);
    /// Lays the report out and shows it, as a rule in the preview window; returns when that is closed.
    void ShowReport();

private:
    QPointer<TRMDBDataSet> m_dataSet;
    std::vector<QPointer<TClientDataSet>> m_headers;
    report::GetValue m_getValue;
    report::TemplatePtr m_template;
};

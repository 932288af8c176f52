// SPDX-License-Identifier: MIT
#include "report/TRMReport.h"

#include "host/clientdataset.h"
#include "report/TRMDBDataSet.h"
#include "report/document.h"
#include "report/output/target.h"
#include "report/template/templatereader.h"

#include <QApplication>

#include <stdexcept>
#include <utility>

TRMReport::TRMReport(QObject *parent)
    : QObject(parent)
{
}

void TRMReport::setDataSet(TRMDBDataSet *dataSet)
{
    m_dataSet = dataSet;
}

void TRMReport::setHeaders(const std::vector<TClientDataSet *> &headers)
{
    m_headers.assign(headers.begin(), headers.end());
}

void TRMReport::LoadFromFile(const QString &path)
{
    m_template = report::loadTemplate(path);
}

void TRMReport::ShowReport()
{
    if (!m_template)
        throw std::runtime_error(QStringLiteral("还没有载入报表模板。").toStdString());
    report::RowSource list;
    if (m_dataSet && m_dataSet->dataSet() != nullptr)
        list = report::RowSource(*m_dataSet->dataSet());
    std::vector<report::RowSource> headers;
    for (const QPointer<TClientDataSet> &header : m_headers) {
        if (header)
            headers.emplace_back(*header);
    }
    report::Document document(m_template, std::move(list), std::move(headers), m_getValue);
    document.layOutNext();
    report::target().show(document, QApplication::activeWindow());
}

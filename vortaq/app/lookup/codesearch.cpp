// SPDX-License-Identifier: MIT
// Gathers the request, runs it once and shows the list.
#include "vortaq/app/lookup/codesearch.h"

#include "vortaq/app/lookup/lookupdialog.h"
#include "vortaq/app/lookup/lookupmodel.h"
#include "vortaq/app/lookup/lookuprequest.h"
#include "vortaq/app/waitcursor.h"

#include <QApplication>
#include <QScreen>

#include <stdexcept>
#include <string_view>

namespace vortaq {

namespace {

automation::DataPacketPtr load(Engine &engine, const LookupRequest &request)
{
    const WaitCursor cursor;
    return engine.query(lookupStatement(request));
}

void placeBelow(QDialog &dialog, const QWidget *field, const QPoint &offset)
{
    if (!field)
        return;
    dialog.adjustSize();
    const QRect onScreen(field->mapToGlobal(QPoint(0, 0)), field->size());
    dialog.move(lookupPosition(onScreen, dialog.size(), offset, field->screen()->availableGeometry()));
}

} // namespace

CodeSearch::CodeSearch(std::shared_ptr<Session> session)
    : m_session(std::move(session))
{
}

void CodeSearch::Init()
{
    m_table.clear();
    m_where.clear();
    m_orderBy.clear();
    m_fieldList.clear();
    m_customField.clear();
    m_codeType.clear();
    m_code.clear();
    m_offset = {};
    m_rowHeight = 0;
    m_rows.reset();
    m_chosenRow = -1;
}

void CodeSearch::SetPosition(int x, int y, int rowHeight)
{
    m_offset = {x, y};
    m_rowHeight = rowHeight;
}

void CodeSearch::Show()
{
    m_chosenRow = -1;
    m_rows.reset();
    const LookupRequest request{m_table,     m_where,       m_orderBy,
                                m_fieldList, m_customField, LookupMatch::fromVariant(m_codeType),
                                m_code,      m_offset,      m_rowHeight};
    m_rows = load(m_session->engine(), request);

    QWidget *field = QApplication::focusWidget();
    LookupModel model(m_rows, codeColumn(request), request.match);
    LookupDialog dialog(model, initialFilter(request.code), request.rowHeight, field ? field->window() : nullptr);
    placeBelow(dialog, field, request.offset);
    if (dialog.exec() == QDialog::Accepted)
        m_chosenRow = dialog.chosenRow();
}

QString CodeSearch::GetCodeValue(const QString &columnName)
{
    if (m_chosenRow < 0)
        return {};
    const int column = m_rows->columnIndex(columnName);
    if (column < 0)
        throw std::invalid_argument(QStringLiteral("代码查询没有栏目“%1”。").arg(columnName).toStdString());
    const std::string_view text = m_rows->text(m_chosenRow, column);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace vortaq

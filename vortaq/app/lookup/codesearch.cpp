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

QStringList rowTexts(const automation::DataPacket &rows, int row)
{
    QStringList texts;
    for (int column = 0; column < rows.columnCount(); ++column) {
        const std::string_view text = rows.text(row, column);
        texts.append(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }
    return texts;
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
    m_values.clear();
}

void CodeSearch::SetPosition(int x, int y, int rowHeight)
{
    m_offset = {x, y};
    m_rowHeight = rowHeight;
}

void CodeSearch::Show()
{
    m_rows.reset();
    m_values.clear();
    const LookupRequest request{m_table,     m_where,       m_orderBy,
                                m_fieldList, m_customField, LookupMatch::fromVariant(m_codeType),
                                m_code,      m_offset,      m_rowHeight};
    m_rows = load(m_session->engine(), request);

    QWidget *field = QApplication::focusWidget();
    LookupModel model(m_rows, codeColumn(request), request.match);
    LookupDialog dialog(model, initialFilter(request.code), request.rowHeight, field ? field->window() : nullptr);
    placeBelow(dialog, field, request.offset);
    const QString list = m_table + QLatin1Char('\n') + m_fieldList;
    if (dialog.exec() == QDialog::Accepted) {
        m_lastList = list;
        m_lastValues = rowTexts(*m_rows, dialog.chosenRow());
    }
    m_values = m_lastList == list ? m_lastValues : ownValues(lookupFields(request));
}

QStringList CodeSearch::ownValues(const QStringList &fields) const
{
    QStringList values;
    for (const QString &field : fields)
        values.append(m_session->parameter(field).toString());
    return values;
}

QString CodeSearch::GetCodeValue(const QString &columnName)
{
    if (m_values.isEmpty())
        return {};
    const int column = m_rows->columnIndex(columnName);
    if (column < 0)
        throw std::invalid_argument(QStringLiteral("代码查询没有栏目“%1”。").arg(columnName).toStdString());
    return m_values.value(column);
}

} // namespace vortaq

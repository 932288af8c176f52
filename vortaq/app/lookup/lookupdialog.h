// SPDX-License-Identifier: MIT
// The list that drops down from a field and lets a clerk choose a code by typing.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QTableView;

namespace vortaq {

class LookupModel;

/// Typing filters; arrows, PgUp, PgDn, Ctrl+Home and Ctrl+End move while the edit keeps the focus; Enter or a double
/// click takes the row; Escape cancels. Enter on an empty list does nothing.
class LookupDialog : public QDialog {
    Q_OBJECT

public:
    /// `model` is borrowed and must outlive the dialog. Rows are at least `rowHeight` pixels high.
    LookupDialog(LookupModel &model, const QString &filter, int rowHeight, QWidget *parent);

    /// The packet's row that was taken; -1 when there is none.
    [[nodiscard]] int chosenRow() const { return m_chosenRow; }
    /// Room for a dozen rows; a small screen gets fewer.
    [[nodiscard]] QSize sizeHint() const override;
    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void dressTable(int rowHeight);
    void applyFilter(const QString &text);
    bool moveBy(int key, Qt::KeyboardModifiers modifiers);
    void take();

    LookupModel &m_model;
    QLineEdit *m_filter;
    QTableView *m_table;
    QLabel *m_count;
    QSize m_preferred; // of the table
    int m_chosenRow = -1;
};

} // namespace vortaq

// SPDX-License-Identifier: MIT
// A code field that is filled by a look-up: keys are commands, not text.
#pragma once

#include <QLineEdit>

class CodeSearchEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit CodeSearchEdit(QWidget *parent = nullptr);

Q_SIGNALS:
    /// A key was pressed; nothing is typed into the field by it. Tab and mnemonics keep their usual meaning.
    void keyDown(int virtualKey);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
};

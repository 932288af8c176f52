// SPDX-License-Identifier: MIT
// The narrow panel beside a grid, with a caption that reads from top to bottom.
#pragma once

#include <QFrame>

class QLabel;

/// Keeps its one label centred: top = (panel height − label height) / 2, towards zero.
class CaptionPanel : public QFrame {
    Q_OBJECT

public:
    explicit CaptionPanel(QWidget *parent = nullptr);

    /// Sets the text of the label inside, sizes the label to it and centres it.
    void setCaption(QLabel *label, const QString &caption);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void centre();

    QLabel *m_label = nullptr;
};

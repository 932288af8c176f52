// SPDX-License-Identifier: MIT
#include "report/output/dialogs.h"

#include "report/output/savefiledialog.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace report {

namespace {

class SystemDialogs final : public Dialogs {
public:
    bool hasPrinter() override { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

    bool choosePrinter(QWidget *parent, QPrinter &printer, int pages) override
    {
        QPrintDialog dialog(&printer, parent);
        dialog.setOption(QAbstractPrintDialog::PrintPageRange);
        dialog.setMinMax(1, pages);
        dialog.setObjectName(QStringLiteral("dlgPrinter"));
        dialog.setWindowTitle(QStringLiteral("打印"));
        return dialog.exec() == QDialog::Accepted;
    }

    QString chooseFile(QWidget *parent, const QString &caption, const QString &name, const QString &suffix) override
    {
        return askForSaveFile(parent, caption, name, suffix);
    }
};

SystemDialogs systemDialogs;
Dialogs *current = &systemDialogs;

} // namespace

Dialogs &dialogs()
{
    return *current;
}

void setDialogs(Dialogs *dialogs)
{
    current = dialogs != nullptr ? dialogs : &systemDialogs;
}

} // namespace report

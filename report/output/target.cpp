// SPDX-License-Identifier: MIT
#include "report/output/target.h"

#include "report/document.h"
#include "report/output/filename.h"
#include "report/output/print.h"
#include "report/preview/PreviewWindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QVariant>

#include <stdexcept>
#include <utility>

namespace report {

namespace {

class UsualTarget final : public Target {
public:
    void show(Document &document, QWidget *parent) override
    {
        const QString folder = qApp->property("reportFolder").toString();
        if (folder.isEmpty())
            PreviewWindow(document, parent).run();
        else
            PdfFolder(folder).show(document, parent);
    }
};

UsualTarget usualTarget;
Target *current = &usualTarget;

} // namespace

PdfFolder::PdfFolder(QString folder)
    : m_folder(std::move(folder))
{
}

void PdfFolder::show(Document &document, QWidget * /*parent*/)
{
    const QDir folder(m_folder);
    if (!folder.mkpath(QStringLiteral(".")))
        throw std::runtime_error(QStringLiteral("无法建立文件夹“%1”。").arg(m_folder).toStdString());
    const QString title = fileName(document.source());
    QString name = title + QStringLiteral(".pdf");
    for (int number = 2; folder.exists(name); ++number)
        name = QStringLiteral("%1-%2.pdf").arg(title, QString::number(number));
    (void)writePdf(document, folder.filePath(name)); // nobody is there to stop it
}

Target &target()
{
    return *current;
}

void setTarget(Target *target)
{
    current = target != nullptr ? target : &usualTarget;
}

} // namespace report

// SPDX-License-Identifier: MIT
// Where a finished report goes: the preview window, or files where nobody looks at windows.
#pragma once

#include <QString>

class QWidget;

namespace report {

class Document;

class Target {
public:
    virtual ~Target() = default;

    /// The document's first page is laid out. Returns when the clerk is done with it. What laying out the other pages
    /// throws comes out of here.
    virtual void show(Document &document, QWidget *parent) = 0;
};

/// Writes every document as a PDF file named by its title into a folder, which is made when it is missing; a number
/// keeps documents of the same title apart.
class PdfFolder final : public Target {
public:
    explicit PdfFolder(QString folder);
    void show(Document &document, QWidget *parent) override;

private:
    QString m_folder;
};

/// The target in use; the preview window until setTarget() is called. An application that works by itself names a
/// folder in its property "reportFolder" (a text) and gets a PdfFolder there instead.
[[nodiscard]] Target &target();
/// Null restores the usual one. Borrowed.
void setTarget(Target *target);

} // namespace report

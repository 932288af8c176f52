// SPDX-License-Identifier: MIT
// Documents that are read instead of shown.
#pragma once

#include "report/document.h"
#include "report/output/target.h"

#include <QStringList>

#include <functional>
#include <utility>

/// Takes every report while it lives: the texts of all its boxes, in their order.
class NotedPapers final : public report::Target {
public:
    NotedPapers() { report::setTarget(this); }
    ~NotedPapers() override { report::setTarget(nullptr); }
    Q_DISABLE_COPY(NotedPapers)

    void show(report::Document &document, QWidget *) override
    {
        (void)document.finish();
        QStringList texts;
        for (int index = 0; index < document.pageCount(); ++index) {
            for (const report::TextBox &text : document.page(index).texts)
                texts.append(text.text);
        }
        m_papers.append(texts.join(u'\n'));
    }

    /// One text a document, its boxes joined by line ends; forgotten afterwards.
    QStringList take() { return std::exchange(m_papers, {}); }

private:
    QStringList m_papers;
};

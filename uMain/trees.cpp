// SPDX-License-Identifier: MIT
#include "uMain/trees.h"

#include "toolkit/TdxTreeList.h"

#include <QApplication>
#include <QStyle>

void setUpTree(TdxTreeList &tree, const char *columnName, const char *caption)
{
    tree.setColumns({{.name = columnName, .caption = caption != nullptr ? caption : ""}});
    tree.setHeaderHidden(caption == nullptr);
    tree.setAutoSort(false);
    const QStyle &style = *QApplication::style();
    tree.setImages({style.standardIcon(QStyle::SP_DirIcon), style.standardIcon(QStyle::SP_FileIcon),
                    style.standardIcon(QStyle::SP_FileDialogDetailedView)});
}

// SPDX-License-Identifier: MIT
// What most sources with windows read first. Every source still includes what it uses.
#pragma once

#include "cmake/precompiled/core.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <QWidget>

// SPDX-License-Identifier: MIT
// Dialogs on screens that may be small.
#pragma once

#include <QSize>

class QDialog;

namespace toolkit {

/// Before a dialog is shown: gives it the size `wanted`, or as much of it as the screen behind has room for. Contents
/// that cannot be made as small as that scroll, so that every button stays in reach.
void fitToScreen(QDialog &dialog, const QSize &wanted);

} // namespace toolkit

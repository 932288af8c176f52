// SPDX-License-Identifier: MIT
// What most sources below the windows read first. Every source still includes what it uses.
#pragma once

#include "cmake/precompiled/standard.h"

#include <QByteArray>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVariant>

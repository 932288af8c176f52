// SPDX-License-Identifier: MIT
// What the main form knows about the logged-in user and the installation.
#pragma once

#include <QString>

/// Read at every showing of the form; see TfrmMain::FormShow().
struct Session {
    int connStyle = 0; ///< 1: "len" spelling and database re-checks; any other number: "length", no re-checks
    QString AreaCode; ///< the user's full area code
    QString areaPrefix; ///< its first six characters
    QString OrgCode; ///< the user's organisation: default bill organisation, key of the bill lists
    QString OrgName;
    QString OrgType;
    QString OrgGrade;
    int FeeInterfaceMode = 0; ///< 0 before start-up has ended, 1 stored procedure, 2 library
};

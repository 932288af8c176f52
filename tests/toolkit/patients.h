// SPDX-License-Identifier: MIT
// Columns and rows of a small list of patients.
#pragma once

#include "automation/datapacket.h"
#include "toolkit/columndefinition.h"

#include <string>
#include <vector>

using automation::DataPacketBuilder;
using automation::DataPacketPtr;
using toolkit::ColumnDefinition;
using toolkit::ColumnKind;

/// Columns of the fixture's list, by position.
enum Column { Check, Number, Card, Name, Age, Fee, Imported, Remark, Key };

inline std::vector<ColumnDefinition> patientColumns()
{
    return {{.name = "listCheck", .caption = "选择", .kind = ColumnKind::Check, .editable = true},
            {.name = "listNumber", .caption = "序"},
            {.name = "listCard", .caption = "合作医疗证号", .field = "Card"},
            {.name = "listName", .caption = "患者姓名", .field = "PatientName"},
            {.name = "listAge", .caption = "年龄", .field = "Age", .alignment = Qt::AlignRight},
            {.name = "listFee", .caption = "总费用", .field = "Fee", .kind = ColumnKind::Currency},
            {.name = "listImported",
             .caption = "是否接口导入",
             .field = "Imported",
             .kind = ColumnKind::Check,
             .checked = "True",
             .unchecked = "False"},
            {.name = "listRemark", .caption = "备注", .editable = true},
            {.name = "listKey", .caption = "", .field = "DiagNo", .hidden = true}};
}

struct Patient {
    const char *card;
    const char *name;
    const char *age;
    const char *fee; // null: no amount
    const char *imported;
    const char *key;
};

inline const std::vector<Patient> somePatients = {
    {"001", "王秀英", "45岁", "         1234.50", "True", "11"},
    {"002", "张伟", "5岁", "          900.00", "False", "12"},
    {"003", "阿依古丽", "8月", "        10000.00", "2", "13"},
    {"004", "李建国", "45岁", nullptr, "True", "14"},
    {"005", "李丽", "61岁", "           -0.50", "False", "15"},
};

inline DataPacketPtr packetOf(const std::vector<Patient> &patients)
{
    DataPacketBuilder builder({QStringLiteral("card"), QStringLiteral("PATIENTNAME"), QStringLiteral("Age"),
                               QStringLiteral("Fee"), QStringLiteral("Imported"), QStringLiteral("DiagNo")});
    for (const Patient &patient : patients) {
        for (const char *text : {patient.card, patient.name, patient.age, patient.fee, patient.imported, patient.key})
            text == nullptr ? builder.appendNull() : builder.append(text);
    }
    return builder.finish();
}

/// `rows` patients with cards "P0", "P1", …
inline DataPacketPtr manyPatients(int rows)
{
    DataPacketBuilder builder({QStringLiteral("Card"), QStringLiteral("PatientName"), QStringLiteral("Age"),
                               QStringLiteral("Fee"), QStringLiteral("Imported"), QStringLiteral("DiagNo")});
    for (int row = 0; row < rows; ++row) {
        builder.append("P" + std::to_string(row));
        builder.append("患者" + std::to_string(row));
        builder.append(std::to_string(row % 90) + "岁");
        builder.append("           " + std::to_string(row) + ".25");
        builder.append("False");
        builder.append(std::to_string(row));
    }
    return builder.finish();
}

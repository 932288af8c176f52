// SPDX-License-Identifier: MIT
// The field "制单机构": keys that open the host's look-up, and what comes back from it.
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QLineEdit>

using namespace expected;

namespace {

QString search(const QString &call)
{
    return QStringLiteral("CodeSearch.") + call;
}

/// The whole conversation of one look-up that was begun with a character.
QStringList lookup(QChar code, const char *area = "429901")
{
    return {search(QStringLiteral("Init()")),
            search(QStringLiteral("Table(p_ylfwdw)")),
            search(QStringLiteral("Where( OrgCode like '%1%')").arg(QString::fromUtf8(area))),
            search(QStringLiteral("OrderBy()")),
            search(QStringLiteral("FieldList(OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称)")),
            search(QStringLiteral("CustomField(OrgCode)")),
            QStringLiteral("FuncStorage.GetSRM()"),
            search(QStringLiteral("CodeType()")),
            search(QStringLiteral("Code(") + code + QLatin1Char(')')),
            search(QStringLiteral("SetPosition(0,-2,18)")),
            search(QStringLiteral("Show()")),
            search(QStringLiteral("GetCodeValue(医疗服务单位代码)")),
            search(QStringLiteral("GetCodeValue(医疗服务单位名称)"))};
}

class InstitutionSearchTest : public testing::Test {
protected:
    void open(const char *area = "429901")
    {
        Desk::Options options;
        options.parameters = {{QStringLiteral("AreaCode"), QString::fromUtf8(area)}};
        m_desk.emplace(options);
        m_desk->open();
        code().setFocus();
        m_desk->conversation().take();
    }

    [[nodiscard]] QLineEdit &code() { return hands::find<QLineEdit>(m_desk->form(), "edtOrgCode"); }
    [[nodiscard]] QLineEdit &name() { return hands::find<QLineEdit>(m_desk->form(), "edtOrgName"); }

    /// Presses a key in the field and then, in the list that drops down, types and presses another one.
    void choose(Qt::Key key, const char *typed, Qt::Key end, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const ModalVisit visit(QStringLiteral("codeSearchDialog"), [&](QWidget &list) {
            auto &filter = hands::find<QLineEdit>(list, "codeSearchFilter");
            m_initialFilter = filter.text();
            filter.insert(QString::fromUtf8(typed)); // names come from an input method, not from keys
            QTest::keyClick(&filter, end);
        });
        QTest::keyClick(&code(), key, modifiers);
    }

    std::optional<Desk> m_desk;
    QString m_initialFilter;
};

struct KeyRow {
    const char *title;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char *text; ///< already in the field
    int code; ///< the character the look-up begins with; -1: it does not open
};

void PrintTo(const KeyRow &row, std::ostream *out)
{
    *out << row.title;
}

const KeyRow Keys[] = {
    {"Letter", Qt::Key_B, Qt::NoModifier, "", 'B'},
    {"CapitalLetter", Qt::Key_B, Qt::ShiftModifier, "", 'B'},
    {"LetterInAFilledField", Qt::Key_A, Qt::NoModifier, "42990101", 'A'},
    {"Digit", Qt::Key_7, Qt::NoModifier, "", '7'},
    {"DigitWithShift", Qt::Key_AsciiCircum, Qt::ShiftModifier, "", '6'},
    {"EightWithShift", Qt::Key_Asterisk, Qt::ShiftModifier, "", '8'},
    {"ZeroOfTheNumberPad", Qt::Key_0, Qt::KeypadModifier, "", 96},
    {"DigitOfTheNumberPad", Qt::Key_4, Qt::KeypadModifier, "", 100},
    {"StarOfTheNumberPad", Qt::Key_Asterisk, Qt::KeypadModifier, "", 106},
    {"PlusOfTheNumberPad", Qt::Key_Plus, Qt::KeypadModifier, "", 107},
    {"MinusOfTheNumberPad", Qt::Key_Minus, Qt::KeypadModifier, "", 109},
    {"PointOfTheNumberPad", Qt::Key_Period, Qt::KeypadModifier, "", 110},
    {"SlashOfTheNumberPad", Qt::Key_Slash, Qt::KeypadModifier, "", 111},
    {"ArrowOfTheNumberPad", Qt::Key_Left, Qt::KeypadModifier, "", 37},
    {"Blank", Qt::Key_Space, Qt::NoModifier, "", ' '},
    {"Delete", Qt::Key_Delete, Qt::NoModifier, "42990101", 0},
    {"Backspace", Qt::Key_Backspace, Qt::NoModifier, "42990101", 0},
    {"EnterInAnEmptyField", Qt::Key_Return, Qt::NoModifier, "", 13},
    {"EnterOfTheNumberPad", Qt::Key_Enter, Qt::KeypadModifier, "", 13},
    {"EnterInAFilledField", Qt::Key_Return, Qt::NoModifier, "42990101", -1},
    {"Shift", Qt::Key_Shift, Qt::NoModifier, "", -1},
    {"Control", Qt::Key_Control, Qt::NoModifier, "", -1},
    {"Alt", Qt::Key_Alt, Qt::NoModifier, "", -1},
    {"Escape", Qt::Key_Escape, Qt::NoModifier, "42990101", -1},
};

/// Lets a look-up that should not have opened fail its test instead of waiting for ever.
void closeUnexpectedDialog()
{
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        ADD_FAILURE() << "a look-up has opened";
        dialog->close();
    }
}

class InstitutionSearchKey : public InstitutionSearchTest, public testing::WithParamInterface<KeyRow> { };

} // namespace

TEST_P(InstitutionSearchKey, opensTheLookUpOrDoesNothing)
{
    open();
    const QString text = QString::fromUtf8(GetParam().text);
    code().setText(text);
    const bool opens = GetParam().code >= 0;
    std::optional<ModalVisit> visit;
    if (opens)
        visit.emplace(QStringLiteral("codeSearchDialog"),
                      [](QWidget &list) { QTest::keyClick(&list, Qt::Key_Escape); });
    else
        QTimer::singleShot(0, &code(), closeUnexpectedDialog);
    QTest::keyClick(&code(), GetParam().key, GetParam().modifiers);
    if (opens) {
        EXPECT_EQ(m_desk->conversation().take(), lookup(QChar(GetParam().code)));
    } else {
        EXPECT_EQ(m_desk->conversation().take(), QStringList());
        EXPECT_EQ(code().text(), text);
        EXPECT_EQ(name().text(), QStringLiteral("甲镇卫生院"));
    }
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Keys, InstitutionSearchKey, testing::ValuesIn(Keys),
                         [](const auto &row) { return std::string(row.param.title); });

TEST_F(InstitutionSearchTest, theChosenInstitutionFillsBothFields)
{
    open();
    choose(Qt::Key_0, "2", Qt::Key_Return);
    EXPECT_EQ(m_initialFilter, QStringLiteral("0")) << "the key is the first character searched for";
    EXPECT_EQ(m_desk->conversation().take(), lookup(u'0'));
    EXPECT_EQ(code().text(), QStringLiteral("42990102"));
    EXPECT_EQ(name().text(), QStringLiteral("乙镇卫生院"));
    EXPECT_EQ(m_desk->form().focusWidget(), &code());
}

TEST_F(InstitutionSearchTest, aDigitOfTheNumberPadIsTheFirstCharacterSearchedFor)
{
    open();
    choose(Qt::Key_0, "2", Qt::Key_Return, Qt::KeypadModifier);
    EXPECT_EQ(m_initialFilter, QStringLiteral("0"));
    EXPECT_EQ(m_desk->conversation().take(), lookup(u'`')) << "code 96";
    EXPECT_EQ(code().text(), QStringLiteral("42990102"));
}

TEST_F(InstitutionSearchTest, aSearchByNameBeginsUnfiltered)
{
    open();
    choose(Qt::Key_Backspace, "乙", Qt::Key_Return);
    EXPECT_EQ(m_initialFilter, QString());
    EXPECT_EQ(code().text(), QStringLiteral("42990102"));
}

TEST_F(InstitutionSearchTest, onlyInstitutionsOfTheAreaAreOffered)
{
    open("429999");
    choose(Qt::Key_Delete, "", Qt::Key_Return);
    EXPECT_EQ(m_desk->conversation().take(), lookup(QChar(0), "429999"));
    EXPECT_EQ(code().text(), QStringLiteral("42999901"));
    EXPECT_EQ(name().text(), QStringLiteral("外县医院"));
}

TEST_F(InstitutionSearchTest, aCancelledSearchLeavesBothFieldsAsTheyWere)
{
    open();
    choose(Qt::Key_1, "", Qt::Key_Escape);
    EXPECT_EQ(m_desk->conversation().take(), lookup(u'1')) << "whatever the look-up holds is taken";
    EXPECT_EQ(code().text(), QStringLiteral("42990101")) << "the clerk's own";
    EXPECT_EQ(name().text(), QStringLiteral("甲镇卫生院"));
    EXPECT_EQ(m_desk->form().focusWidget(), &code());

    choose(Qt::Key_0, "2", Qt::Key_Return);
    choose(Qt::Key_Delete, "", Qt::Key_Escape);
    EXPECT_EQ(code().text(), QStringLiteral("42990102")) << "the one chosen last";
    EXPECT_EQ(name().text(), QStringLiteral("乙镇卫生院"));

    m_desk->form().hide();
    m_desk->form().show();
    choose(Qt::Key_Delete, "", Qt::Key_Escape);
    EXPECT_EQ(code().text(), QStringLiteral("42990101")) << "the form has begun anew";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(InstitutionSearchTest, theFoundInstitutionGoesIntoTheBill)
{
    open();
    choose(Qt::Key_0, "2", Qt::Key_Return);
    hands::clickCell(hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"), 0, "dxTLUpCheck");
    hands::click(m_desk->form(), "btnSave");
    EXPECT_EQ(m_desk->rows("select BillCode,BillNo,BillName from o_CbZyZdb where BillNo=4"),
              QStringList(QStringLiteral("42990102|4|乙镇卫生院")));
}

TEST_F(InstitutionSearchTest, aQuoteInTheAreaCodeBreaksTheCondition)
{
    // The area code goes in as it is; it comes from the installation and never holds a quote in practice.
    open("42'9");
    QTest::keyClick(&code(), Qt::Key_0);
    const QStringList lines = m_desk->conversation().take();
    const QStringList wanted = lookup(u'0', "42'9").mid(0, 11);
    ASSERT_EQ(lines.size(), wanted.size()) << "nothing is read from a look-up that failed";
    EXPECT_EQ(lines.mid(0, 10), wanted.mid(0, 10));
    EXPECT_TRUE(lines.last().startsWith(wanted.last() + QStringLiteral(" !"))) << lines.last().toStdString();
    EXPECT_EQ(m_desk->errors().size(), 1) << "the failure reaches the host's display";
    EXPECT_EQ(code().text(), QStringLiteral("42990101")) << "the fields keep their texts";
    EXPECT_EQ(name().text(), QStringLiteral("甲镇卫生院"));
}

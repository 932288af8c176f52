// SPDX-License-Identifier: MIT
// Options, their help texts and what may stand together.
#include "vortaq/app/options.h"

#include <QCommandLineParser>

#include <limits>

namespace vortaq {

namespace {

struct Declared {
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("显示本帮助后结束。")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("显示版本后结束。")};
    QCommandLineOption database{
        QStringLiteral("database"),
        QStringLiteral("要使用的数据库文件。缺省为用户数据目录中的数据库，没有时用演示数据建立。"),
        QStringLiteral("文件")};
    QCommandLineOption user{QStringLiteral("user"), QStringLiteral("操作员代码。缺省为数据库中的第一个用户。"),
                            QStringLiteral("代码")};
    QCommandLineOption param{QStringLiteral("param"),
                             QStringLiteral("替换一个主程序参数，例如 isBillAll=2；可以多次使用。"),
                             QStringLiteral("名称=值")};
    QCommandLineOption trace{QStringLiteral("trace"),
                             QStringLiteral("把模块对主程序对象的每次调用写入文件，每行一个 JSON 对象。"
                                            "以前的跟踪文件会被替换，其他文件不会。"),
                             QStringLiteral("文件")};
    QCommandLineOption module{QStringLiteral("module"),
                              QStringLiteral("要装入的模块。缺省为程序所在目录下的 Module/Tarnwell.so。"),
                              QStringLiteral("文件")};
    QCommandLineOption createDemo{QStringLiteral("create-demo"), QStringLiteral("建立演示数据库后结束。"),
                                  QStringLiteral("文件")};
    QCommandLineOption records{QStringLiteral("records"), QStringLiteral("演示数据中现有报销记录的笔数。"),
                               QStringLiteral("N")};
    QCommandLineOption archived{QStringLiteral("archived"), QStringLiteral("演示数据中历史报销记录的笔数。"),
                                QStringLiteral("N")};
    QCommandLineOption seed{QStringLiteral("seed"), QStringLiteral("演示数据的随机种子；种子相同，数据相同。"),
                            QStringLiteral("N")};
    QCommandLineOption tour{QStringLiteral("tour"),
                            QStringLiteral("用演示数据自动走一遍主要业务，把每一步的画面存入目录；不需要显示器。"),
                            QStringLiteral("目录")};
};

void declare(QCommandLineParser &parser, const Declared &declared)
{
    parser.setApplicationDescription(QStringLiteral("农村合作医疗医院业务平台：装入并运行业务模块。"));
    parser.addOptions({declared.help, declared.version, declared.database, declared.user, declared.param,
                       declared.trace, declared.module, declared.createDemo, declared.records, declared.archived,
                       declared.seed, declared.tour});
}

/// A whole number that is not negative, or a mistake.
template <typename Number>
std::optional<Number> number(const QCommandLineParser &parser, const QCommandLineOption &option, QString &mistake)
{
    if (!parser.isSet(option))
        return {};
    bool valid = false;
    const QString text = parser.value(option);
    const qulonglong value = text.toULongLong(&valid);
    if (valid && value <= static_cast<qulonglong>(std::numeric_limits<Number>::max()))
        return static_cast<Number>(value);
    mistake = QStringLiteral("选项 --%1 的值“%2”不是有效的数。").arg(option.names().constLast(), text);
    return {};
}

void readParameters(const QStringList &texts, ParsedOptions &parsed)
{
    for (const QString &text : texts) {
        const qsizetype equals = text.indexOf(QLatin1Char('='));
        if (equals <= 0) {
            parsed.mistake = QStringLiteral("选项 --param 的值“%1”应为“名称=值”。").arg(text);
            return;
        }
        parsed.options.parameters.push_back({text.left(equals), text.mid(equals + 1)});
    }
}

Options::Task taskOf(const QCommandLineParser &parser, const Declared &declared)
{
    if (parser.isSet(declared.help))
        return Options::Task::ShowHelp;
    if (parser.isSet(declared.version))
        return Options::Task::ShowVersion;
    if (parser.isSet(declared.createDemo))
        return Options::Task::CreateDemo;
    return parser.isSet(declared.tour) ? Options::Task::Tour : Options::Task::Work;
}

QString combinationMistake(const QCommandLineParser &parser, const Declared &declared)
{
    if (parser.isSet(declared.createDemo) && parser.isSet(declared.tour))
        return QStringLiteral("选项 --create-demo 与 --tour 不能同时使用。");
    const bool hasSize =
        parser.isSet(declared.records) || parser.isSet(declared.archived) || parser.isSet(declared.seed);
    if (hasSize && !parser.isSet(declared.createDemo))
        return QStringLiteral("选项 --records、--archived、--seed 只能与 --create-demo 一起使用。");
    if (parser.isSet(declared.tour) && parser.isSet(declared.database))
        return QStringLiteral("选项 --tour 使用自己的演示数据，不能与 --database 同时使用。");
    for (const QCommandLineOption *option : {&declared.database, &declared.user, &declared.trace, &declared.module,
                                             &declared.createDemo, &declared.tour}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty())
            return QStringLiteral("选项 --%1 的值不能为空。").arg(option->names().constLast());
    }
    return {};
}

QString syntaxMistake(const QCommandLineParser &parser)
{
    if (!parser.unknownOptionNames().isEmpty())
        return QStringLiteral("没有选项“%1”。").arg(parser.unknownOptionNames().constFirst());
    return QStringLiteral("命令行有误：%1").arg(parser.errorText());
}

} // namespace

ParsedOptions parseOptions(const QStringList &arguments)
{
    const Declared declared;
    QCommandLineParser parser;
    declare(parser, declared);
    ParsedOptions parsed;
    if (!parser.parse(arguments)) {
        parsed.mistake = syntaxMistake(parser);
        return parsed;
    }
    if (!parser.positionalArguments().isEmpty()) {
        parsed.mistake = QStringLiteral("多余的参数“%1”。").arg(parser.positionalArguments().constFirst());
        return parsed;
    }
    parsed.mistake = combinationMistake(parser, declared);

    Options &options = parsed.options;
    options.task = taskOf(parser, declared);
    options.database = parser.value(declared.database);
    options.user = parser.value(declared.user);
    options.traceFile = parser.value(declared.trace);
    options.moduleFile = parser.value(declared.module);
    options.demoFile = parser.value(declared.createDemo);
    options.tourDirectory = parser.value(declared.tour);
    options.records = number<int>(parser, declared.records, parsed.mistake);
    options.archived = number<int>(parser, declared.archived, parsed.mistake);
    options.seed = number<quint64>(parser, declared.seed, parsed.mistake);
    readParameters(parser.values(declared.param), parsed);
    return parsed;
}

QString helpText()
{
    QCommandLineParser parser;
    declare(parser, Declared());
    return parser.helpText();
}

} // namespace vortaq

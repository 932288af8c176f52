// SPDX-License-Identifier: MIT
#include "automation/latebound.h"

#include "automation/error.h"
#include "automation/journal.h"
#include "automation/registry.h"

#include <QObject>

#include <array>

namespace automation {

namespace {

constexpr std::size_t MaximumArguments = 10;

bool sameName(QLatin1StringView declared, const QString &wanted)
{
    return wanted.compare(declared, Qt::CaseInsensitive) == 0;
}

QMetaMethod findMethod(const QMetaObject *meta, const QString &name, Kind kind)
{
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() != QMetaMethod::Method || !sameName(QLatin1StringView(method.name()), name))
            continue;
        const bool isRead = qstrcmp(method.tag(), "AUTOMATION_READ") == 0;
        if (isRead == (kind == Kind::Read))
            return method;
    }
    return {};
}

QMetaProperty findProperty(const QMetaObject *meta, const QString &name)
{
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.isWritable() && sameName(QLatin1StringView(property.name()), name))
            return property;
    }
    return {};
}

QString kindText(Kind kind)
{
    switch (kind) {
    case Kind::Method:
        return QStringLiteral("方法");
    case Kind::Read:
        return QStringLiteral("属性读取");
    case Kind::Write:
        return QStringLiteral("属性赋值");
    }
    return {};
}

[[noreturn]] void wrongCount(const QString &object, const QString &operation, std::size_t expected, std::size_t given)
{
    throw Error(Error::Reason::ArgumentCount,
                QStringLiteral("调用“%1.%2”的参数个数不符：应为%3个，实为%4个。")
                    .arg(object, operation)
                    .arg(expected)
                    .arg(given));
}

void convertArgument(QVariant &value, QMetaType type, const QString &object, const QString &operation)
{
    if (type == QMetaType::fromType<QVariant>() || value.metaType() == type)
        return;
    if (!value.isValid())
        value = QVariant(type); // an empty variant passes as the type's own empty value
    else if (!value.convert(type))
        throw Error(Error::Reason::ArgumentType, QStringLiteral("调用“%1.%2”的参数类型不符。").arg(object, operation));
}

} // namespace

LateBound::LateBound(const QString &identifier)
    : m_object(createObject(identifier))
    , m_name(identifier.section(QLatin1Char('.'), -1))
{
}

Operation LateBound::resolve(const QString &operation, Kind kind) const
{
    if (!m_object)
        throw Error(Error::Reason::NoObject, QStringLiteral("调用“%1”时主程序对象尚未创建。").arg(operation));
    Operation found;
    found.m_name = operation;
    found.m_kind = kind;
    if (kind == Kind::Write)
        found.m_property = findProperty(m_object->metaObject(), operation);
    else
        found.m_method = findMethod(m_object->metaObject(), operation, kind);
    if (!found.isResolved()) {
        throw Error(Error::Reason::UnknownOperation,
                    QStringLiteral("主程序对象“%1”没有操作“%2”（%3）。").arg(m_name, operation, kindText(kind)));
    }
    return found;
}

QVariant LateBound::invoke(const Operation &operation, std::initializer_list<QVariant> arguments) const
{
    if (!m_object || !operation.isResolved())
        throw Error(Error::Reason::NoObject, QStringLiteral("主程序对象尚未创建。"));
    if (!journalIsKept())
        return run(operation, arguments);

    CallRecord record{m_name, operation.m_name, operation.m_kind, QVariantList(arguments), {}, {}, true};
    try {
        record.result = run(operation, arguments);
    } catch (...) { // a host may throw what it likes
        record.succeeded = false;
        record.error = messageOfCurrent();
        writeJournal(record);
        throw;
    }
    writeJournal(record);
    return record.result;
}

QVariant LateBound::run(const Operation &operation, std::initializer_list<QVariant> arguments) const
{
    if (operation.m_kind == Kind::Write) {
        if (arguments.size() != 1)
            wrongCount(m_name, operation.m_name, 1, arguments.size());
        QVariant value = *arguments.begin();
        convertArgument(value, operation.m_property.metaType(), m_name, operation.m_name);
        operation.m_property.write(m_object.get(), value);
        return {};
    }

    const QMetaMethod &method = operation.m_method;
    const auto expected = static_cast<std::size_t>(method.parameterCount());
    if (arguments.size() != expected || expected > MaximumArguments)
        wrongCount(m_name, operation.m_name, expected, arguments.size());

    std::array<QVariant, MaximumArguments> values;
    std::array<void *, MaximumArguments + 1> pointers{};
    const QMetaType resultType = method.returnMetaType();
    const bool variantResult = resultType == QMetaType::fromType<QVariant>();
    QVariant result;
    if (variantResult)
        pointers[0] = &result;
    else if (resultType.id() != QMetaType::Void) {
        result = QVariant(resultType);
        pointers[0] = result.data();
    }
    std::size_t position = 0;
    for (const QVariant &argument : arguments) {
        QVariant &value = values[position];
        value = argument;
        const QMetaType type = method.parameterMetaType(static_cast<int>(position));
        convertArgument(value, type, m_name, operation.m_name);
        ++position;
        pointers[position] = type == QMetaType::fromType<QVariant>() ? static_cast<void *>(&value) : value.data();
    }
    // The call goes straight to the object: host objects live on the caller's thread, and an exception of the
    // operation must reach the caller.
    QMetaObject::metacall(m_object.get(), QMetaObject::InvokeMetaMethod, method.methodIndex(), pointers.data());
    return result;
}

} // namespace automation

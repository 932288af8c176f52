// SPDX-License-Identifier: MIT
// Calls on a host object by operation name, resolved at run time.
#pragma once

#include "automation/export.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QString>
#include <QVariant>

#include <initializer_list>
#include <memory>

/// Marks an invokable method as a property read with an argument, for example
///     Q_INVOKABLE AUTOMATION_READ QVariant CustomParam(const QString &name);
#ifndef Q_MOC_RUN
#define AUTOMATION_READ
#endif

namespace automation {

/// How an operation is invoked: a method, a property read with an argument, or a property assignment.
enum class Kind { Method, Read, Write };

/// An operation found on one object; finding costs a search by name, calling through it does not.
class Operation {
public:
    Operation() = default;
    [[nodiscard]] bool isResolved() const noexcept { return m_method.isValid() || m_property.isValid(); }

private:
    friend class LateBound;
    QString m_name;
    Kind m_kind = Kind::Method;
    QMetaMethod m_method;
    QMetaProperty m_property;
};

/// A shared reference to a host object. Copies refer to the same object, which lives until the last one is gone.
///
/// A host object is a QObject: methods are its invokable methods, reads with an argument are invokable methods
/// marked AUTOMATION_READ, writes are its properties. Names are compared without regard to letter case; a name
/// belongs to one operation, so overloads are not told apart. Arguments are converted to the declared types.
/// Exceptions raised by an operation reach the caller unchanged.
class AUTOMATION_EXPORT LateBound {
public:
    LateBound() = default;
    /// Creates the object registered under `identifier`; throws Error(UnknownIdentifier).
    explicit LateBound(const QString &identifier);

    [[nodiscard]] bool isEmpty() const noexcept { return m_object == nullptr; }
    /// The part of the identifier behind the last dot, for example "DataCtl".
    [[nodiscard]] const QString &name() const noexcept { return m_name; }

    /// Throws Error(NoObject) or Error(UnknownOperation).
    [[nodiscard]] Operation resolve(const QString &operation, Kind kind) const;

    /// Invokes a resolved operation. Throws Error(ArgumentCount), Error(ArgumentType) or what the operation raises.
    QVariant invoke(const Operation &operation, std::initializer_list<QVariant> arguments = {}) const;

    /// Finds and invokes in one step.
    QVariant invoke(const QString &operation, Kind kind, std::initializer_list<QVariant> arguments = {}) const
    {
        return invoke(resolve(operation, kind), arguments);
    }

private:
    QVariant run(const Operation &operation, std::initializer_list<QVariant> arguments) const;

    std::shared_ptr<QObject> m_object;
    QString m_name;
};

} // namespace automation

// SPDX-License-Identifier: MIT
// The least host that the module's pages work with: the real engine, and parameters that never change.
#pragma once

#include "automation/datapacket.h"
#include "automation/latebound.h"
#include "automation/registry.h"
#include "host/references.h"
#include "vortaq/Engine.h"

#include <QObject>
#include <QVariant>

#include <memory>

namespace bench {

class MeasuredDataCtl : public QObject {
    Q_OBJECT

public:
    MeasuredDataCtl(vortaq::Engine &engine, int &queries)
        : m_engine(engine)
        , m_queries(queries)
    {
    }
    Q_INVOKABLE automation::DataPacketPtr OpenSql(const QString &sql)
    {
        ++m_queries;
        return m_engine.query(sql);
    }
    Q_INVOKABLE void CloseSql() { }

private:
    vortaq::Engine &m_engine;
    int &m_queries;
};

class MeasuredFuncStorage : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE AUTOMATION_READ QVariant CustomParam(const QString &name)
    {
        if (name == QStringLiteral("DigitalFormat"))
            return QStringLiteral(",0.00;-,0.00");
        if (name == QStringLiteral("OrgCode"))
            return QStringLiteral("420101");
        return name == QStringLiteral("isBillAll") ? QVariant(1) : QVariant(0xF7F4EE);
    }
};

/// Stands behind the module's shared references for as long as it lives.
class MeasuredHost {
public:
    explicit MeasuredHost(std::unique_ptr<vortaq::Engine> engine)
        : m_engine(std::move(engine))
    {
        using namespace host;
        const auto dataCtl = QString::fromUtf16(DataCtlProxy::Identifier);
        const auto funcStorage = QString::fromUtf16(FuncStorageProxy::Identifier);
        automation::registerObject(dataCtl, [this] { return std::make_unique<MeasuredDataCtl>(*m_engine, m_queries); });
        automation::registerObject(funcStorage, [] { return std::make_unique<MeasuredFuncStorage>(); });
        shared().DataCtl = DataCtlProxy(automation::LateBound(dataCtl));
        shared().FuncStorage = FuncStorageProxy(automation::LateBound(funcStorage));
        automation::unregisterObject(dataCtl);
        automation::unregisterObject(funcStorage);
    }
    ~MeasuredHost() { host::shared() = {}; }
    MeasuredHost(const MeasuredHost &) = delete;
    MeasuredHost &operator=(const MeasuredHost &) = delete;

    [[nodiscard]] int queries() const { return m_queries; }

private:
    std::unique_ptr<vortaq::Engine> m_engine;
    int m_queries = 0;
};

} // namespace bench

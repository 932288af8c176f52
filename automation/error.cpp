// SPDX-License-Identifier: MIT
#include "automation/error.h"

namespace automation {

Error::Error(Reason reason, const QString &message)
    : std::runtime_error(message.toStdString())
    , m_reason(reason)
{
}

Error::~Error() = default;

QString messageOfCurrent()
{
    try {
        throw;
    } catch (const std::exception &error) {
        return messageOf(error);
    } catch (...) {
        return QStringLiteral("未知错误。");
    }
}

} // namespace automation

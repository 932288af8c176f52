// SPDX-License-Identifier: MIT
#include "toolkit/guard.h"

namespace toolkit {

namespace {

int handlersAtWork = 0; // all on the thread of the user interface

} // namespace

HandlerAtWork::HandlerAtWork() noexcept
{
    ++handlersAtWork;
}

HandlerAtWork::~HandlerAtWork()
{
    --handlersAtWork;
}

bool HandlerAtWork::any() noexcept
{
    return handlersAtWork > 0;
}

QString errorWhile(const QString &doing, const QString &error)
{
    return doing.isEmpty() ? error : doing + QStringLiteral("时出错：\n") + error;
}

} // namespace toolkit

// SPDX-License-Identifier: MIT
#include "automation/journal.h"

#include <algorithm>
#include <vector>

namespace automation {

namespace {

std::vector<CallObserver *> &observers()
{
    static std::vector<CallObserver *> list;
    return list;
}

} // namespace

CallObserver::CallObserver() = default;
CallObserver::~CallObserver() = default;

void addCallObserver(CallObserver *observer)
{
    observers().push_back(observer);
}

void removeCallObserver(CallObserver *observer)
{
    std::erase(observers(), observer);
}

bool journalIsKept() noexcept
{
    return !observers().empty();
}

void writeJournal(const CallRecord &call)
{
    for (CallObserver *observer : observers())
        observer->called(call);
}

} // namespace automation

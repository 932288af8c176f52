// SPDX-License-Identifier: MIT
#include "module/formregister.h"

#include "uMain/TfrmMain.h"

#include <QCoreApplication>

namespace module {

FormRegister &FormRegister::instance()
{
    static FormRegister forms;
    return forms;
}

FormRegister::FormRegister()
{
    // A widget cannot be a child of the application object, so the application's own end is what destroys it.
    qAddPostRoutine(&FormRegister::destroyAll);
}

FormRegister::~FormRegister()
{
    qRemovePostRoutine(&FormRegister::destroyAll);
    if (QCoreApplication::instance() != nullptr)
        qDeleteAll(QSet<TfrmMain *>(m_forms));
}

void FormRegister::destroyAll()
{
    qDeleteAll(QSet<TfrmMain *>(instance().m_forms));
}

TfrmMain *FormRegister::create()
{
    auto form = std::make_unique<TfrmMain>();
    TfrmMain *created = form.get();
    m_forms.insert(created);
    QObject::connect(created, &QObject::destroyed, [this, created] { m_forms.remove(created); });
    m_mainForm = form.release();
    return created;
}

TfrmMain *FormRegister::find(const void *address) const
{
    for (TfrmMain *form : m_forms) {
        if (static_cast<QWidget *>(form) == address)
            return form;
    }
    return nullptr;
}

} // namespace module

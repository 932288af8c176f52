// SPDX-License-Identifier: MIT
// The smallest module that works: a form with an exit button, which counts how often it was shown, and displays an
// error at it where the application has the property "loadingFails".
#include "automation/errordisplay.h"
#include "module/tarnwell_module.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QShowEvent>
#include <QVariant>

#include <cstring>
#include <memory>

namespace {

class PlainForm : public QWidget {
public:
    PlainForm()
        : m_exit(QStringLiteral("退出(&X)"), this)
    {
        setObjectName(QStringLiteral("plainForm"));
        m_exit.setObjectName(QStringLiteral("btnExit"));
        connect(&m_exit, &QPushButton::clicked, this, &QWidget::close);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QWidget::showEvent(event);
        if (event->spontaneous())
            return;
        setProperty("shown", property("shown").toInt() + 1);
        if (QCoreApplication::instance()->property("loadingFails").toBool())
            automation::displayError(QStringLiteral("没有数据。"));
    }

private:
    QPushButton m_exit;
};

} // namespace

int32_t CreateModule(void **form, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t)
{
#ifdef MODULE_THAT_FAILS
    static_cast<void>(form);
    return TARNWELL_UNEXPECTED;
#else
    *form = static_cast<QWidget *>(std::make_unique<PlainForm>().release());
    return TARNWELL_OK;
#endif
}

int32_t FreeModule(void **form)
{
    if (static_cast<QWidget *>(*form)->property("busy").toBool())
        return TARNWELL_BUSY;
    const std::unique_ptr<QWidget> owned(static_cast<QWidget *>(*form));
    return TARNWELL_OK;
}

int32_t RefreshModule(intptr_t, intptr_t)
{
#ifdef MODULE_THAT_FAILS
    return TARNWELL_UNEXPECTED;
#else
    return TARNWELL_OK;
#endif
}

int32_t GetModuleInfo(intptr_t, char **buffer)
{
    // "Plain,Work(业务管理),Bill(制单),2(4),"
    constexpr char information[] = "Plain,Work(\xD2\xB5\xCE\xF1\xB9\xDC\xC0\xED),Bill(\xD6\xC6\xB5\xA5),2(4),";
    std::memcpy(*buffer, information, sizeof information);
    return TARNWELL_OK;
}

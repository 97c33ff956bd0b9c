// SPDX-License-Identifier: MIT
#include "frmMDI.h"

#include "Diagnostics.h"
#include "Session.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QCoreApplication>
#include <QMdiArea>

frmMDI::frmMDI(Session &session, QWidget *parent) : QMainWindow(parent), m_session(session), m_mdi(new QMdiArea(this))
{
    setObjectName(QStringLiteral("frmMDI"));
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdi);
    resize(1024, 720);
}

QString frmMDI::captionText()
{
    return QStringLiteral("Zobrel (Version: %1)").arg(QCoreApplication::applicationVersion());
}

void frmMDI::Form_Load()
{
    // The load reports its errors under the name of the user routine, as it always has.
    guarded(m_session, {ErrForm::Shared, QStringLiteral("NetworkUserName")}, [&] {
        m_session.gProject = std::make_shared<clsProject>(m_session);
        m_session.gScenario = std::make_shared<clsScenario>(m_session);
        setWindowTitle(captionText());
        if (m_session.startUser()) {
            if (m_session.windows)
                m_session.windows->show(QStringLiteral("frmProjectList"));
        } else {
            m_session.msgBox(Session::welcomeMessage(), QString(), MsgIcon::Information);
            if (m_session.windows)
                m_session.windows->show(QStringLiteral("frmSetup"));
        }
    });
}

// SPDX-License-Identifier: MIT
#include "frmGetDir.h"

#include "ControlEvents.h"
#include "FolderList.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "SystemLinks.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmGetDir> reg(QStringLiteral("frmGetDir"));
}

frmGetDir::frmGetDir(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmGetDir"))
{
    setCaption(QStringLiteral("Select Directory"));
    HelpContextID = 3505;
    FormBuilder b(this);
    m_txtDir = b.textBox(QStringLiteral("txtDir"), QStringLiteral("Folder:"));
    FormBuilder::userTyped(m_txtDir);
    b.label(QStringLiteral("lblDirectories"), QStringLiteral("Directories:"));
    m_dirMain = new FolderList(this);
    b.add(m_dirMain, QStringLiteral("dirMain"));
    m_drvMain = new DriveList(this);
    b.add(m_drvMain, QStringLiteral("drvMain"), QStringLiteral("Drive(s):"));
    if (auto *l = findChild<QLabel *>(QStringLiteral("lblDirectories")))
        l->setBuddy(m_dirMain);
    FormBuilder row = b.row();
    row.stretch();
    QPushButton *ok = row.button(QStringLiteral("cmdControl"), 0, QStringLiteral("&OK"));
    QPushButton *cancel = row.button(QStringLiteral("cmdControl"), 1, QStringLiteral("&Cancel"));
    ok->setDefault(true);
    setTabOrder(m_txtDir, m_dirMain);
    setTabOrder(m_dirMain, m_drvMain);
    setTabOrder(m_drvMain, ok);
    setTabOrder(ok, cancel);
    resize(460, 420);

    connect(ok, &QPushButton::clicked, this, [this] { cmdControl_Click(0); });
    connect(cancel, &QPushButton::clicked, this, [this] { cmdControl_Click(1); });
    connect(m_drvMain, &DriveList::Change, this, [this] { m_dirMain->setPath(m_drvMain->root()); });
    connect(m_dirMain, &FolderList::Change, this, [this] {
        m_txtDir->setText(QDir::toNativeSeparators(m_dirMain->path()));
        m_drvMain->showRootOf(m_dirMain->path());
    });
    connect(ControlEvents::of(m_txtDir), &ControlEvents::LostFocus, this, &frmGetDir::goToTyped);
}

void frmGetDir::Form_Load()
{
    const QString start = session().gSelectedDir;
    if (start.isEmpty() || start == QLatin1String("FALSE") || !m_dirMain->setPath(resolvePathCase(start)))
        m_dirMain->setPath(session().home);
}

void frmGetDir::goToTyped()
{
    const QString typed = m_txtDir->text().trimmed();
    if (typed.isEmpty() || QDir::cleanPath(QDir::fromNativeSeparators(typed)) == m_dirMain->path())
        return;
    // A folder typed in the box is shown when it exists; otherwise the box keeps what was typed.
    m_dirMain->setPath(resolvePathCase(typed));
}

bool frmGetDir::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode == 27) {
        cmdControl_Click(1);
        return true;
    }
    if (keyCode == 13 && focusWidget() == m_txtDir) {
        goToTyped();
        return true;
    }
    return false;
}

void frmGetDir::cmdControl_Click(int index)
{
    if (index == 0) {
        session().gSelectedDir = chosenFolder(m_txtDir->text());
    }
    unloadMe();
}

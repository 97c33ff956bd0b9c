// SPDX-License-Identifier: MIT
#include "SystemLinks.h"

#include "QtWindowHost.h"
#include "Session.h"
#include "clsProject.h"
#include "clsScenario.h"
#include "frmMDI.h"
#include "frmProject.h"
#include "frmSearch_File.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

namespace {
const QString kProjectWindow = QStringLiteral("frmProject");
const QString kBuilder = QStringLiteral("frmZOB");
const QString kChooser = QStringLiteral("frmSearch_File");

//! The project object's view of frmProject. Commands that put something into the window load it
//! (as a reference to the window always did); questions about a window that is not loaded get
//! empty answers, and clearing a window that is not there clears nothing.
class ProjectWindowLink : public QObject, public ProjectWindow {
public:
    explicit ProjectWindowLink(QtWindowHost &host) : QObject(&host), m_host(host)
    {
        setObjectName(QStringLiteral("ProjectWindowLink"));
    }

    void load() override { window(); }
    void show() override { m_host.show(kProjectWindow); }
    QString projectText(int index) const override
    {
        const frmProject *w = loaded();
        return w ? w->projectText(index) : QString();
    }
    void setProjectText(int index, const QString &text) override
    {
        if (frmProject *w = window())
            w->setProjectText(index, text);
    }
    qint32 stateProvinceId() const override
    {
        const frmProject *w = loaded();
        return w ? w->stateProvinceId() : 0;
    }
    void clearControls() override
    {
        if (frmProject *w = loaded())
            w->clearControls();
    }
    void setScenarioCommands(bool enabled) override
    {
        if (frmProject *w = window())
            w->setScenarioCommands(enabled);
    }
    void setProjectSource(const QString &sql) override
    {
        if (frmProject *w = window())
            w->setProjectSource(sql);
    }
    void setScenarioSource(const QString &sql) override
    {
        if (frmProject *w = window())
            w->setScenarioSource(sql);
    }

private:
    frmProject *loaded() const { return qobject_cast<frmProject *>(m_host.loaded(kProjectWindow)); }
    frmProject *window() { return m_host.form<frmProject>(kProjectWindow); }
    QtWindowHost &m_host;
};

//! Opens the scenario builder through the window host. Until the builder is part of the program the
//! user is told so instead of nothing happening.
class BuilderLink : public QObject, public ScenarioWindow {
public:
    BuilderLink(Session &session, QtWindowHost &host) : QObject(&host), m_session(session), m_host(host)
    {
        setObjectName(QStringLiteral("BuilderLink"));
    }
    void showBuilder() override
    {
        if (QtWindowHost::isRegistered(kBuilder)) {
            m_host.show(kBuilder);
            return;
        }
        m_session.msgBox(QStringLiteral("The scenario builder is not available in this version of the program. "
                                        "The scenario has been kept in the database."),
                         QString(), MsgIcon::Information);
    }

private:
    Session &m_session;
    QtWindowHost &m_host;
};

//! The application's file chooser: frmSearch_File shown modally.
class SearchFileChooser : public QObject, public FileChooser {
public:
    explicit SearchFileChooser(QtWindowHost &host) : QObject(&host), m_host(host)
    {
        setObjectName(QStringLiteral("SearchFileChooser"));
    }

    FileChoice choose(const QString &fileType, const QString &action) override
    {
        auto *w = m_host.form<frmSearch_File>(kChooser);
        if (!w)
            return {};
        return w->OpenForm(fileType, action);
    }
    void setDescription(const QString &text) override
    {
        m_description = text;
        if (auto *w = qobject_cast<frmSearch_File *>(m_host.loaded(kChooser)))
            w->setInfo(text);
    }
    QString description() const override
    {
        if (auto *w = qobject_cast<frmSearch_File *>(m_host.loaded(kChooser)))
            return w->info();
        return m_description;
    }

private:
    QtWindowHost &m_host;
    QString m_description;
};

const bool kHooked = (frmMDI::addLoadHook(&installSystemLinks), true);

//! The link object of a kind that the host already holds, null if none. (The links are plain QObjects
//! without meta-objects of their own, so they are told apart by name.)
template <typename T>
T *linkOf(QtWindowHost &host, const char *name)
{
    return dynamic_cast<T *>(host.findChild<QObject *>(QString::fromLatin1(name), Qt::FindDirectChildrenOnly));
}
}  // namespace

void installSystemLinks(Session &session, QtWindowHost &host)
{
    Q_UNUSED(kHooked);
    auto *chooser = linkOf<SearchFileChooser>(host, "SearchFileChooser");
    if (!chooser)
        chooser = new SearchFileChooser(host);
    session.fileChooser = chooser;
    auto *project = linkOf<ProjectWindowLink>(host, "ProjectWindowLink");
    if (!project)
        project = new ProjectWindowLink(host);
    auto *builder = linkOf<BuilderLink>(host, "BuilderLink");
    if (!builder)
        builder = new BuilderLink(session, host);
    if (session.gProject)
        session.gProject->window = project;
    if (session.gScenario)
        session.gScenario->window = builder;
}

ScenarioWindow *builderLink(QtWindowHost &host)
{
    return linkOf<BuilderLink>(host, "BuilderLink");
}

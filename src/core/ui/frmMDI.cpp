// SPDX-License-Identifier: MIT
#include "frmMDI.h"

#include "Diagnostics.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobWindow.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMenuBar>

frmMDI::frmMDI(Session &session, QtWindowHost &host, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_host(host), m_mdi(new QMdiArea(this))
{
    setObjectName(QStringLiteral("frmMDI"));
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdi);
    resize(1024, 720);
    m_host.setMdiArea(m_mdi);
    m_host.setMainWindow(this);
    buildMenu();
    connect(&m_host, &QtWindowHost::windowLoaded, this, &frmMDI::updateProjectItems);
    connect(&m_host, &QtWindowHost::windowUnloaded, this, &frmMDI::updateProjectItems);
}

QString frmMDI::captionText()
{
    return QStringLiteral("Zobrel (Version: %1)").arg(QCoreApplication::applicationVersion());
}

QAction *frmMDI::item(QMenu *menu, const QString &name, const QString &caption)
{
    QAction *a = menu->addAction(caption);
    a->setObjectName(name);
    return a;
}

QAction *frmMDI::menuItem(const QString &name) const
{
    return findChild<QAction *>(name);
}

QVector<frmMDI::LoadHook> &frmMDI::loadHooks()
{
    static QVector<LoadHook> hooks;
    return hooks;
}

void frmMDI::addLoadHook(LoadHook hook)
{
    loadHooks().append(std::move(hook));
}

void frmMDI::requireWindow(QAction *item, const QString &window)
{
    if (QtWindowHost::isRegistered(window))
        return;
    item->setEnabled(false);
    item->setToolTip(QStringLiteral("This window (%1) is not available yet in this version of the program.").arg(window));
}

void frmMDI::buildMenu()
{
    auto show = [this](const QString &name, bool modal = false) { return [this, name, modal] { m_host.show(name, modal); }; };

    QMenu *file = menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    file->setToolTipsVisible(true);
    QAction *setup = item(file, QStringLiteral("mnuIniSetup"), QStringLiteral("&Setup..."));
    connect(setup, &QAction::triggered, this, show(QStringLiteral("frmSetup")));
    requireWindow(setup, QStringLiteral("frmSetup"));
    file->addSeparator()->setObjectName(QStringLiteral("mnuBar10"));
    // Exit ends the process at once: no window is asked anything.
    connect(item(file, QStringLiteral("mnuExit"), QStringLiteral("E&xit")), &QAction::triggered, this,
            [] { QCoreApplication::exit(0); });

    QMenu *project = menuBar()->addMenu(QStringLiteral("Project"));
    project->setObjectName(QStringLiteral("mnuProjectMenu"));
    project->setToolTipsVisible(true);
    QAction *title = project->menuAction();
    title->setObjectName(QStringLiteral("mnuProject"));
    connect(project, &QMenu::aboutToShow, this, show(QStringLiteral("frmProjectList")));
    connect(title, &QAction::triggered, this, show(QStringLiteral("frmProjectList")));
    connect(item(project, arrayName(QStringLiteral("mnuProjectOptions"), 0), QStringLiteral("New...")),
            &QAction::triggered, this, [this] {
                guarded(m_session, {ErrForm::Shared, QStringLiteral("mnuProjectOptions_Click")}, [&] { m_session.gProject->AddNew(); });
            });
    connect(item(project, arrayName(QStringLiteral("mnuProjectOptions"), 1), QStringLiteral("Open...")),
            &QAction::triggered, this, [this] {
                guarded(m_session, {ErrForm::Shared, QStringLiteral("mnuProjectOptions_Click")}, [&] {
                    m_session.gProject->Clear();
                    m_session.gProject->OpenFile();
                });
            });
    connect(item(project, arrayName(QStringLiteral("mnuProjectOptions"), 2), QStringLiteral("Close")),
            &QAction::triggered, this, [] { QCoreApplication::exit(0); });
    project->addSeparator()->setObjectName(arrayName(QStringLiteral("mnuProjectOptions"), 3));
    connect(item(project, arrayName(QStringLiteral("mnuProjectOptions"), 4), QStringLiteral("&Save")),
            &QAction::triggered, this, [this] {
                guarded(m_session, {ErrForm::Shared, QStringLiteral("mnuProjectOptions_Click")}, [&] {
                    // A new project whose file name was not given before is asked for one again.
                    if (m_session.gProject->Mode == QLatin1String("Add") && m_session.gProject->FileName.isEmpty())
                        m_session.gProject->FileName = QStringLiteral("*.NAV");
                    m_session.gProject->Save();
                    m_session.gProject->SetCmd(true);
                });
            });
    item(project, arrayName(QStringLiteral("mnuProjectOptions"), 5), QStringLiteral("Save &As..."));  // no action

    QMenu *entry = menuBar()->addMenu(QStringLiteral("&Data Entry"));
    entry->setObjectName(QStringLiteral("mnuDataEntry"));
    entry->setToolTipsVisible(true);
    QAction *references = item(entry, QStringLiteral("mnuReferences"), QStringLiteral("References"));
    connect(references, &QAction::triggered, this, show(QStringLiteral("frmSelect_Reference")));
    requireWindow(references, QStringLiteral("frmSelect_Reference"));
    QAction *wildlife = item(entry, QStringLiteral("mnuWldDE"), QStringLiteral("Wildlife Data Entry"));
    requireWindow(wildlife, QStringLiteral("frmSelect_Species"));
    connect(wildlife, &QAction::triggered, this,
            [this] {
                RecordRequest request;
                request.keyField = QStringLiteral("ScenarioID");
                request.table = QStringLiteral("tblWildlife");
                request.mode = QStringLiteral("Write");
                request.entry = QStringLiteral("Menu");
                if (ZobWindow *w = m_host.form(QStringLiteral("frmSelect_Species")))
                    w->setRecord(request);
                m_host.show(QStringLiteral("frmSelect_Species"));
            });
    entry->addSeparator()->setObjectName(QStringLiteral("mnuBar111"));
    QMenu *generic = entry->addMenu(QStringLiteral("Generic Data Entry"));
    generic->menuAction()->setObjectName(QStringLiteral("mnuWLDGenericData"));
    generic->setToolTipsVisible(true);
    const struct { const char *name, *caption, *window, *key, *table; } pickers[] = {
        {"mnuIntakeModel", "Allometric Equations", "frmSelect_IntakeModel", "IntakeModelID", "tblIntakeModel"},
        {"mnuAE", "Assimilation Efficiency", "frmSelect_AE", "AEID", "tblAE"},
        {"mnuGE", "Gross Energy", "frmSelect_GE", "GrossEnergyID", "tblGrossEnergy"},
        {"mnuWaterConversion", "Moisture", "frmSelect_WaterConversion", "WaterConversionID", "tblWaterConversion"},
        {"mnuSoilIngestion", "Soil Ingestion", "frmSelect_SoilIngestion", "SoilIngestionID", "tblSoilIngestion"},
        {"mnuTrophicLevel", "Trophic Level", "frmSelect_TrophicLevel", "TrophicLevelID", "tblTrophicLevel"},
    };
    for (const auto &p : pickers) {
        const QString window = QString::fromLatin1(p.window), key = QString::fromLatin1(p.key),
                      table = QString::fromLatin1(p.table);
        QAction *a = item(generic, QString::fromLatin1(p.name), QString::fromLatin1(p.caption));
        connect(a, &QAction::triggered, this, [this, window, key, table] { openPicker(window, key, table); });
        requireWindow(a, window);
    }
    QAction *lifeHistory = item(entry, QStringLiteral("mnuLifeStage"), QStringLiteral("Life History"));
    requireWindow(lifeHistory, QStringLiteral("frmSearch_LifeHistory"));
    connect(lifeHistory, &QAction::triggered, this,
            [this] {
                RecordRequest request;
                request.keyField = QStringLiteral("NA");
                request.table = QStringLiteral("NA");
                if (ZobWindow *w = m_host.form(QStringLiteral("frmSearch_LifeHistory")))
                    w->setRecord(request);
                m_host.show(QStringLiteral("frmSearch_LifeHistory"));
            });

    QMenu *help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    connect(item(help, QStringLiteral("mnuContents"), QStringLiteral("&Contents")), &QAction::triggered, this, [this] {
        if (m_session.help)
            m_session.help->showTopic(1501);
    });
    help->addSeparator()->setObjectName(QStringLiteral("mnuSep3"));
    connect(item(help, QStringLiteral("mnuAboutTORM"), QStringLiteral("&About ...")), &QAction::triggered, this,
            show(QStringLiteral("frmSplash"), true));

    updateProjectItems();
}

void frmMDI::openPicker(const QString &window, const QString &keyField, const QString &table)
{
    // Browse-and-edit use of a picker: not a selection, record 0, mode "Write".
    RecordRequest request;
    request.keyField = keyField;
    request.table = table;
    request.mode = QStringLiteral("Write");
    request.isSelection = false;
    if (ZobWindow *w = m_host.form(window))
        w->setRecord(request);
    m_host.show(window);
}

void frmMDI::updateProjectItems()
{
    const bool open = m_host.isLoaded(QStringLiteral("frmProject"));
    for (int i : {2, 4, 5})
        if (QAction *a = menuItem(arrayName(QStringLiteral("mnuProjectOptions"), i)))
            a->setEnabled(open);
}

void frmMDI::closeEvent(QCloseEvent *event)
{
    if (m_host.unloadAll())
        event->accept();
    else
        event->ignore();
}

void frmMDI::Form_Load()
{
    // The load reports its errors under the name of the user routine, as it always has.
    guarded(m_session, {ErrForm::Shared, QStringLiteral("NetworkUserName")}, [&] {
        m_session.gProject = std::make_shared<clsProject>(m_session);
        m_session.gScenario = std::make_shared<clsScenario>(m_session);
        for (const LoadHook &hook : loadHooks())
            hook(m_session, m_host);
        setWindowTitle(captionText());
        if (m_session.startUser()) {
            m_host.show(QStringLiteral("frmProjectList"));
        } else {
            m_host.load(QStringLiteral("frmSplash"));
            m_session.msgBox(Session::welcomeMessage(), QString(), MsgIcon::Information);
            m_host.show(QStringLiteral("frmSetup"));
        }
    });
}

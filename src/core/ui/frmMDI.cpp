// SPDX-License-Identifier: MIT
#include "frmMDI.h"

#include "Diagnostics.h"
#include "MenuTable.h"
#include "ProgramStyle.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "WindowGeometry.h"
#include "ZobWindow.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMenuBar>
#include <QShortcut>

frmMDI::frmMDI(Session &session, QtWindowHost &host, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_host(host), m_mdi(new QMdiArea(this))
{
    ProgramStyle::install();
    setObjectName(QStringLiteral("frmMDI"));
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdi);
    m_host.setMdiArea(m_mdi);
    m_host.setMainWindow(this);
    buildMenu();
    connect(&m_host, &QtWindowHost::windowLoaded, this, &frmMDI::updateProjectItems);
    connect(&m_host, &QtWindowHost::windowUnloaded, this, &frmMDI::updateProjectItems);
    WindowGeometry::manageMainWindow(this, QSize(1024, 720));
}

QString frmMDI::captionText()
{
    return QStringLiteral("Zobrel (Version: %1)").arg(QCoreApplication::applicationVersion());
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

void frmMDI::buildMenu()
{
    auto show = [this](const QString &name, bool modal = false) { return [this, name, modal] { m_host.show(name, modal); }; };
    auto projectCommand = [this](std::function<void(clsProject &)> body) {
        return [this, body] {
            guarded(m_session, {ErrForm::Shared, QStringLiteral("mnuProjectOptions_Click")}, [&] { body(*m_session.gProject); });
        };
    };
    auto options = [](int i) { return arrayName(QStringLiteral("mnuProjectOptions"), i); };
    // Exit and Close end the process at once: no window is asked anything.
    auto exit = [] { QCoreApplication::exit(0); };

    addMenu(menuBar(), QStringLiteral("mnuFile"), QStringLiteral("&File"), {
        {QStringLiteral("mnuIniSetup"), QStringLiteral("&Setup..."), show(QStringLiteral("frmSetup")), QStringLiteral("frmSetup")},
        MenuEntry::separatorNamed(QStringLiteral("mnuBar10")),
        {QStringLiteral("mnuExit"), QStringLiteral("E&xit"), exit},
    });
    QMenu *project = addMenu(menuBar(), QStringLiteral("mnuProjectMenu"), QStringLiteral("Project"), {
        {options(0), QStringLiteral("New..."), projectCommand([](clsProject &p) { p.AddNew(); })},
        {options(1), QStringLiteral("Open..."), projectCommand([](clsProject &p) { p.Clear(); p.OpenFile(); })},
        {options(2), QStringLiteral("Close"), exit},
        MenuEntry::separatorNamed(options(3)),
        {options(4), QStringLiteral("&Save"), projectCommand([](clsProject &p) {
             // A new project whose file name was not given before is asked for one again.
             if (p.Mode == QLatin1String("Add") && p.FileName.isEmpty())
                 p.FileName = QStringLiteral("*.NAV");
             p.Save();
             p.SetCmd(true);
         })},
        {options(5), QStringLiteral("Save &As...")},  // no action
    }, QStringLiteral("mnuProject"));
    connect(project, &QMenu::aboutToShow, this, show(QStringLiteral("frmProjectList")));
    connect(project->menuAction(), &QAction::triggered, this, show(QStringLiteral("frmProjectList")));
    // The title keeps its caption without a mnemonic; Alt+P opens it all the same.
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_P), this), &QShortcut::activated, this,
            [this, project] { menuBar()->setActiveAction(project->menuAction()); });

    auto picker = [this](const char *name, const char *caption, const char *window, const char *key, const char *table) {
        const QString w = QString::fromLatin1(window), k = QString::fromLatin1(key), t = QString::fromLatin1(table);
        return MenuEntry{QString::fromLatin1(name), QString::fromLatin1(caption), [this, w, k, t] { openPicker(w, k, t); }, w};
    };
    addMenu(menuBar(), QStringLiteral("mnuDataEntry"), QStringLiteral("&Data Entry"), {
        {QStringLiteral("mnuReferences"), QStringLiteral("References"), show(QStringLiteral("frmSelect_Reference")),
         QStringLiteral("frmSelect_Reference")},
        {QStringLiteral("mnuWldDE"), QStringLiteral("Wildlife Data Entry"), [this] { openWildlifeEntry(); },
         QStringLiteral("frmSelect_Species")},
        MenuEntry::separatorNamed(QStringLiteral("mnuBar111")),
        {QStringLiteral("mnuWLDGenericData"), QStringLiteral("Generic Data Entry"), {}, {}, {
            picker("mnuIntakeModel", "Allometric Equations", "frmSelect_IntakeModel", "IntakeModelID", "tblIntakeModel"),
            picker("mnuAE", "Assimilation Efficiency", "frmSelect_AE", "AEID", "tblAE"),
            picker("mnuGE", "Gross Energy", "frmSelect_GE", "GrossEnergyID", "tblGrossEnergy"),
            picker("mnuWaterConversion", "Moisture", "frmSelect_WaterConversion", "WaterConversionID", "tblWaterConversion"),
            picker("mnuSoilIngestion", "Soil Ingestion", "frmSelect_SoilIngestion", "SoilIngestionID", "tblSoilIngestion"),
            picker("mnuTrophicLevel", "Trophic Level", "frmSelect_TrophicLevel", "TrophicLevelID", "tblTrophicLevel"),
        }},
        {QStringLiteral("mnuLifeStage"), QStringLiteral("Life History"), [this] { openLifeHistory(); },
         QStringLiteral("frmSearch_LifeHistory")},
    });
    addMenu(menuBar(), QStringLiteral("mnuHelp"), QStringLiteral("&Help"), {
        {QStringLiteral("mnuContents"), QStringLiteral("&Contents"), [this] { if (m_session.help) m_session.help->showTopic(1501); }},
        MenuEntry::separatorNamed(QStringLiteral("mnuSep3")),
        {QStringLiteral("mnuAboutTORM"), QStringLiteral("&About ..."), show(QStringLiteral("frmSplash"), true)},
    });
    updateProjectItems();
}

void frmMDI::openWildlifeEntry()
{
    RecordRequest request;
    request.keyField = QStringLiteral("ScenarioID");
    request.table = QStringLiteral("tblWildlife");
    request.mode = QStringLiteral("Write");
    request.entry = QStringLiteral("Menu");
    if (ZobWindow *w = m_host.form(QStringLiteral("frmSelect_Species")))
        w->setRecord(request);
    m_host.show(QStringLiteral("frmSelect_Species"));
}

void frmMDI::openLifeHistory()
{
    RecordRequest request;
    request.keyField = QStringLiteral("NA");
    request.table = QStringLiteral("NA");
    if (ZobWindow *w = m_host.form(QStringLiteral("frmSearch_LifeHistory")))
        w->setRecord(request);
    m_host.show(QStringLiteral("frmSearch_LifeHistory"));
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

void frmMDI::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    // The window area listens to the application for Ctrl+Tab once it is shown; a filter installed
    // after it is asked first.
    if (!m_pageKeys) {
        m_pageKeys = true;
        QCoreApplication::instance()->installEventFilter(this);
    }
}

bool frmMDI::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        auto *key = static_cast<QKeyEvent *>(event);
        if ((key->modifiers() & Qt::ControlModifier) && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)) {
            for (QObject *o = watched; o; o = o->parent())
                if (auto *w = qobject_cast<ZobWindow *>(o))
                    return w->turnPage(key);
        }
    }
    return QMainWindow::eventFilter(watched, event);
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

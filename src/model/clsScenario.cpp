// SPDX-License-Identifier: MIT
#include "clsScenario.h"

#include "Functions.h"
#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsProject.h"

#include <QDate>
#include <QDateTime>

namespace {
const QString kCrLf = QStringLiteral("\r\n");

//! The date the legacy code stores for "today": the date without a time.
QDateTime today() { return QDate::currentDate().startOfDay(); }
}

clsScenario::clsScenario(Session &session) : m_session(session) {}

void clsScenario::Clear()
{
    SID = 0;
    SpeciesID = 0;
    WeightID = 0;
    DietID = 0;
    ChemicalID = 0;
    DietType = 0;
    WtEstimator = 0;
    // These two defaults are the legacy ones and stay as they are, whatever the lookup ids mean today.
    WtSex = QStringLiteral("5");
    WtStatus = 2;
    ScenarioType.clear();
    FileName.clear();
    FilePath.clear();
    Mode.clear();
    Identifier1.clear();
}

QString clsScenario::userDisplayName() const
{
    const QVariant name = m_session.Lookup(QStringLiteral("tblUser"), QStringLiteral("Name"),
                                           QStringLiteral("User = '") + m_session.gUserName + QStringLiteral("'"));
    // A Lookup that fails (a login name with an apostrophe breaks its criteria) gives the empty value,
    // and that is what the scenario records; a user without a Name is recorded as "not found".
    return name.toString();
}

QString clsScenario::userCommentBlock() const
{
    QString block;
    auto rs = m_session.gDB->OpenRecordset(
        QStringLiteral("Select * from tblComments where UserID = %1").arg(m_session.gUserID), RecordsetType::Snapshot);
    while (!rs->EOF_()) {
        block += rs->field(QStringLiteral("Comment")).toString() + QStringLiteral(": ") + kCrLf + kCrLf;
        rs->MoveNext();
    }
    rs->Close();
    return block;
}

void clsScenario::AddNew(const QString &scenarioType)
{
    Clear();
    AddScenarioRecords(scenarioType);
    Mode = QStringLiteral("Add");
    if (scenarioType == QLatin1String("Wildlife") && window)
        window->showBuilder();
}

void clsScenario::AddScenarioRecords(const QString &scenarioType)
{
    Database &gdb = *m_session.gDB;
    {
        auto rs = gdb.OpenRecordset(QStringLiteral("tblScenario"), RecordsetType::Dynaset);
        rs->AddNew();
        rs->setField(QStringLiteral("Scenario_Added"), today());
        rs->setField(QStringLiteral("Scenario_LastSaved"), today());
        rs->setField(QStringLiteral("Scenario_Type"), scenarioType);
        const QString user = userDisplayName();
        rs->setField(QStringLiteral("Scenario_CreatedBy"), user);
        rs->setField(QStringLiteral("Scenario_ModifiedBy"), user);
        rs->setField(QStringLiteral("Scenario_Identifier_1"), Identifier1);
        SID = rs->field(QStringLiteral("ScenarioID")).toInt();
        rs->Update();
        rs->Close();
    }
    if (scenarioType == QLatin1String("Wildlife")) {
        const QString comments = userCommentBlock();
        auto rs = gdb.OpenRecordset(QStringLiteral("tblWildlife"), RecordsetType::Dynaset);
        rs->AddNew();
        rs->setField(QStringLiteral("ScenarioID"), SID);
        rs->setField(QStringLiteral("SpeciesID"), SpeciesID);
        rs->setField(QStringLiteral("SpeciesDataSourceID"), Species_DataSource);
        rs->setField(QStringLiteral("SpeciesComments"), comments);
        rs->setField(QStringLiteral("WtComments"), comments);
        rs->setField(QStringLiteral("DietComments"), comments);
        rs->Update();
        rs->Close();

        static const char *const units[] = {"m3/day", "L/day", "kcal/day", "% dry wt", "g/day"};
        auto intake = gdb.OpenRecordset(QStringLiteral("tblIntakeZOB"), RecordsetType::Dynaset);
        for (int i = 1; i <= 5; ++i) {
            intake->AddNew();
            intake->setField(QStringLiteral("ScenarioID"), SID);
            intake->setField(QStringLiteral("IntakeTypeID"), i);
            intake->setField(QStringLiteral("CategoryID"), 0);
            intake->setField(QStringLiteral("Derivation"), QStringLiteral("Estimated"));
            intake->setField(QStringLiteral("DataSourceID"), 6);
            intake->setField(QStringLiteral("Units"), QString::fromLatin1(units[i - 1]));
            intake->Update();
        }
        intake->Close();
    }
    // A new scenario joins the open project at once.
    if (m_session.gProject && m_session.gProject->PID != 0 && SID != 0) {
        auto rs = gdb.OpenRecordset(QStringLiteral("jtblProjectScenario"), RecordsetType::Dynaset);
        rs->AddNew();
        rs->setField(QStringLiteral("ProjectID"), m_session.gProject->PID);
        rs->setField(QStringLiteral("ScenarioID"), SID);
        rs->Update();
        rs->Close();
    }
}

QString clsScenario::markerLine() const
{
    return QStringLiteral("Scenario ID: %1, File Name: %2, Date Last Modified: %3,")
        .arg(SID)
        .arg(FileName, vb::shortDate(QDate::currentDate()));
}

QString clsScenario::GetFileName()
{
    const QString type = ScenarioType == QLatin1String("Wildlife") ? QStringLiteral("ZOB") : QStringLiteral("KEL");
    if (!m_session.fileChooser)
        return QStringLiteral("File path not saved");
    m_lastChoice = m_session.fileChooser->choose(type, QStringLiteral("Save"));
    if (m_lastChoice.saveFile)
        return m_lastChoice.file;
    return QStringLiteral("File path not saved");
}

void clsScenario::Save(const QString &group)
{
    QString chosenName;
    QString chosenPath;
    if (FileName.isEmpty()) {
        m_session.msgBox(QStringLiteral("Please enter a file name for the scenario file."), QStringLiteral("Name scenario file"),
                         MsgIcon::Information);
        chosenName = GetFileName();
        // A cancelled chooser still gives its folder; the name is then "File path not saved".
        chosenPath = m_lastChoice.path;
        FileName = chosenName;
        FilePath = chosenPath;
    }
    // The database must open before anything is saved: the program's own connection is the proof
    // while it is on that file; a further one is opened once the setup window has pointed elsewhere.
    db = m_session.gDB && m_session.gDB->path() == m_session.gPathDatabase ? m_session.gDB
                                                                         : Database::open(m_session.gPathDatabase);
    SaveWildlife(group);
    const QString line = markerLine();
    if (!chosenName.isEmpty())
        m_session.GF_SetFileContent(Session::join(chosenPath, chosenName), line, QStringLiteral("Overwrite"));
    Mode = QStringLiteral("Edit");
}

void clsScenario::SaveWildlife(const QString &group)
{
    auto rs = m_session.gDB->OpenRecordset(QStringLiteral("Select * from tblScenario where ScenarioID = %1").arg(SID),
                                           RecordsetType::Dynaset);
    rs->Edit();
    rs->setField(QStringLiteral("Scenario_FilePath"), FilePath);
    rs->setField(QStringLiteral("Scenario_FileName"), FileName);
    rs->setField(QStringLiteral("Scenario_ModifiedBy"), userDisplayName());
    rs->setField(QStringLiteral("Scenario_LastSaved"), today());
    rs->setField(QStringLiteral("Scenario_Identifier_1"), Identifier1);
    rs->setField(QStringLiteral("Comments"), note(8));
    rs->Update();
    rs->Close();
    // Only a scenario whose file is a wildlife marker file saves its wildlife groups.
    if (FileName.right(3) == QLatin1String("ZOB"))
        SaveWildlifeGroup(group);
    SpeciesHasChanged = false;
}

void clsScenario::SaveWildlifeGroup(const QString &group)
{
    auto rs = m_session.gDB->OpenRecordset(QStringLiteral("Select * from tblWildlife where ScenarioID = %1").arg(SID),
                                           RecordsetType::Dynaset);
    rs->Edit();
    const bool all = group == QLatin1String("All");
    if (all || group == QLatin1String("Species")) {
        rs->setField(QStringLiteral("ScenarioComments"), note(8));
        rs->setField(QStringLiteral("SpeciesID"), SpeciesID);
        rs->setField(QStringLiteral("Common"), m_session.gSpeciesCommon);
        rs->setField(QStringLiteral("Taxon"), m_session.gSpeciesTaxon);
        rs->setField(QStringLiteral("Latin"), m_session.gSpeciesLatin);
        rs->setField(QStringLiteral("SpeciesComments"), note(0));
        rs->setField(QStringLiteral("SpeciesDataSourceID"), Species_DataSource);
    }
    if (all || group == QLatin1String("WT")) {
        rs->setField(QStringLiteral("WeightID"), WeightID);
        rs->setField(QStringLiteral("Weight"), Weight);
        rs->setField(QStringLiteral("WtStatus"), WtStatus);
        rs->setField(QStringLiteral("WtSex"), WtSex);
        rs->setField(QStringLiteral("WtEstimator"), WtEstimator);
        rs->setField(QStringLiteral("WtComments"), note(1));
        rs->setField(QStringLiteral("WtDataSourceID"), Wt_DataSource);
    }
    if (all || group == QLatin1String("Diet")) {
        rs->setField(QStringLiteral("DietID"), DietID);
        rs->setField(QStringLiteral("DietType"), DietType);
        rs->setField(QStringLiteral("DietComments"), note(2));
        rs->setField(QStringLiteral("DietSeason"), notes ? notes->dietSeason() : QString());
        rs->setField(QStringLiteral("DietHabitat"), notes ? notes->dietHabitat() : QString());
        rs->setField(QStringLiteral("DietSex"), notes ? notes->dietSex() : QString());
        rs->setField(QStringLiteral("DietDataSourceID"), Diet_DataSource);
    }
    rs->Update();
    rs->Close();
}

void clsScenario::OpenFile(const QString &path, const QString &file, bool choose)
{
    if (!choose) {
        if (!ReadFileHeader(m_session, Session::join(path, file))) {
            m_session.msgBox(QStringLiteral("File cannot be confirmed.  Please verify file: ") + file, QString(),
                             MsgIcon::Information);
            if (m_session.fileChooser) {
                const FileChoice c = m_session.fileChooser->choose(file.right(3), QStringLiteral("Open"));
                FilePath = c.path;
                FileName = c.file;
            }
        }
        // The passed values win over what the chooser gave; the SID its selection read stays.
        FilePath = path;
        FileName = file;
    } else if (m_session.fileChooser) {
        const FileChoice c = m_session.fileChooser->choose(file.right(3), QStringLiteral("Open"));
        FilePath = c.path;
        FileName = c.file;
    }
    Mode = QStringLiteral("Edit");
    if (FileName.right(3).toUpper() == QLatin1String("ZOB") && window)
        window->showBuilder();
}

void clsScenario::SaveContaminant()
{
    // The contaminant type has no window in this program; its save keeps the row's shape only.
    auto rs = m_session.gDB->OpenRecordset(
        QStringLiteral("Select * from tblContaminantScenario where ScenarioID= %1").arg(SID), RecordsetType::Dynaset);
    rs->Edit();
    rs->setField(QStringLiteral("ContaminantComments"), note(0));
    rs->setField(QStringLiteral("ScenarioComments"), note(6));
    rs->Update();
    rs->Close();
}

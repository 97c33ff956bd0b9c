// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFields.h"
#include "Services.h"

#include <QString>
#include <QVariant>
#include <memory>

class Session;
class Database;

//! What the scenario save reads from the builder window: its note boxes by number and the three
//! caption boxes of the diet page. The builder implements it; tests give a fake.
class ScenarioNotes {
public:
    virtual ~ScenarioNotes() = default;
    //! Text of note box i (0 species, 1 weight, 2 diet, 8 scenario description).
    virtual QString note(int index) const = 0;
    //! The diet page's season, habitat and sex caption boxes.
    virtual QString dietSeason() const = 0;
    virtual QString dietHabitat() const = 0;
    virtual QString dietSex() const = 0;
};

//! Shows the builder window when a wildlife scenario is created or opened.
class ScenarioWindow {
public:
    virtual ~ScenarioWindow() = default;
    virtual void showBuilder() = 0;
};

//! The one open scenario: its properties and its rows in tblScenario, tblWildlife and tblIntakeZOB,
//! and its one-line marker file on disk.
class clsScenario {
public:
    explicit clsScenario(Session &session);

    // Properties, in the legacy order.
    qint32 Air_DataSource = 0;
    qint32 WAT_DataSource = 0;
    qint32 FMR_DataSource = 0;
    qint32 Soil_DataSource = 0;
    qint32 Sediment_DataSource = 0;
    qint32 SID = 0;
    QString Mode;
    QString ScenarioType;
    QString FileName;
    QString FilePath;
    QString Identifier1;
    bool HasChanged = false;
    QVariant SpeciesHasChanged;
    qint32 SpeciesID = 0;
    qint32 Species_DataSource = 0;
    QString SpeciesTaxon;
    qint32 WeightID = 0;
    float Weight = 0.0f;
    qint16 WtEstimator = 0;
    QString WtSex;
    qint16 WtStatus = 0;
    qint32 Wt_DataSource = 0;
    qint32 DietID = 0;
    qint16 DietType = 0;
    QString Diet_Season;
    QString Diet_Sex;
    QString Diet_Habitat;
    qint32 Diet_DataSource = 0;
    qint32 SoilID = 0;
    qint32 AirCategoryID = 0;
    qint32 WatCategoryID = 0;
    qint32 FMRCategoryID = 0;
    qint32 SoilCategoryID = 0;
    qint32 SedimentCategoryID = 0;
    qint32 ChemicalID = 0;
    std::shared_ptr<Database> db;   //!< the connection Save proved the database with

    //! The properties above by name (ModelFields.cpp), for scripts.
    static const std::vector<ModelField<clsScenario>> &fields();

    //! The builder's note boxes; null until the builder exists (then the notes read as empty).
    ScenarioNotes *notes = nullptr;
    //! Opens the builder; null shows nothing.
    ScenarioWindow *window = nullptr;

    // Operations, in the legacy order. None has a handler: errors go to the caller's.
    void Save(const QString &group);
    void Clear();
    QString GetFileName();
    void AddNew(const QString &scenarioType);
    void OpenFile(const QString &path, const QString &file, bool choose);
    void SaveWildlifeGroup(const QString &group);
    void AddScenarioRecords(const QString &scenarioType);
    void SaveWildlife(const QString &group);
    void SaveContaminant();

    //! The marker line: "Scenario ID: <SID>, File Name: <FileName>, Date Last Modified: <date>,".
    QString markerLine() const;
    //! The user's display name as the scenario rows record it: the Lookup of Name, "not found" kept,
    //! and empty where the Lookup fails.
    QString userDisplayName() const;
    //! The user's comment block: each comment + ": " CRLF CRLF.
    QString userCommentBlock() const;

private:
    QString note(int i) const { return notes ? notes->note(i) : QString(); }
    Session &m_session;
    FileChoice m_lastChoice;   // the chooser's last answer: Save takes its folder
};

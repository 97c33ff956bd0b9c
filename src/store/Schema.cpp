// SPDX-License-Identifier: MIT
#include "Schema.h"

#include "VbError.h"

#include <sqlite3.h>

#include <vector>

namespace {

// Column kinds. The letters keep the table list below readable.
//   K  autonumber key          INTEGER PRIMARY KEY AUTOINCREMENT
//   I  id or reference to one  INTEGER
//   T  text, M memo            TEXT COLLATE NOCASE (text compares ignore case throughout the program)
//   N  number                  REAL (numeric text such as '0.250' becomes 0.25 on insert)
//   I, N and B refuse anything that is not a number (see columnDdl).
//   B  yes/no                  BOOLEAN, stored 1/0
//   D  date and time           DATETIME, stored as 'yyyy-MM-dd hh:mm:ss'
// A column may carry "=default" after its kind: "DataSourceID:I=6".
struct TableDef {
    const char *name;
    const char *columns;  // "Name:Kind[=default], ..."
};

// The classification that reference records carry.
#define CLASSIFICATION "KingdomID:I, SubkingdomID:I, PhylumID:I, ClassID:I, OrderID:I, FamilyID:I"

// New rows of the windows that add a blank record and edit it in place get a null data source (not
// vetted, so the record opens unlocked). Species, weights, diets and diet items added in the species
// workbook are "User entered" (6) by default: the workbook leaves only classes 2 and 6 editable.
const std::vector<TableDef> &tableDefs()
{
    static const std::vector<TableDef> defs = {
        // --- what the user builds ---------------------------------------------------------------
        {"tblScenario",
         "ScenarioID:K, Scenario_Type:T, Scenario_FilePath:T, Scenario_FileName:T, Scenario_Added:D, "
         "Scenario_LastSaved:D, Scenario_CreatedBy:T, Scenario_ModifiedBy:T, Scenario_PrintedBy:T, "
         "Scenario_Identifier_1:T, Comments:M"},
        {"tblWildlife",
         "ScenarioID:I, ScenarioComments:M, SpeciesID:I=0, Common:T, Latin:T, Taxon:T, SpeciesComments:M, "
         "SpeciesDataSourceID:I, WeightID:I=0, Weight:N, WtStatus:I, WtSex:T, WtEstimator:I, WtComments:M, "
         "WtDataSourceID:I, DietID:I=0, DietType:I, DietComments:M, DietSeason:T='', DietHabitat:T='', "
         "DietSex:T='', DietDataSourceID:I"},
        {"tblWildlifeDiet",
         "DietID:I, fldDiet_ID:I, SpeciesID:I, DataTypeID:I, ReferenceID:I, MeasureTermID:I, "
         "MaterialAnalyzedID:I, AnalysisNotes:M, CollectionNotes:M, GenderID:I, LifestageID:I, "
         "HabitatTypeID:I, BegMonthID:I, EndMonthID:I, Latitude:T, Longitude:T, Location:T, DataSourceID:I, "
         "DietTypeID:I, StateProvinceID:I, Region:T, ScenarioID:I"},
        {"tblWildlifeDietItems",
         "ScenarioID:I, DietID:I, DietItemID:I, Name:T, Comments:M, WetValue:N, DryValue:N, Wet_Proportion:N, "
         "Dry_Proportion:N, Sample:N, WaterConversionID:I, WaterPercent:N, WaterPercentDS:I, TrophicLevelID:I, "
         "TrophicLevel:N, TrophiclevelDS:I, AEID:I, GrossEnergyID:I, " CLASSIFICATION ", Genus:T, Species:T, "
         "ComponentID:I, LifestageID:I, DataSourceID:I, N_Unit:N, Bio_Availability:N"},
        {"tblIntakeZOB",
         "ScenarioID:I, IntakeTypeID:I, BaseRate:N=0, AdjustedRate:N=0, Units:T, Units_CF:N=1, Measured_CF:N=1, "
         "Derivation:T='Estimated', IntakeModelID:I=0, IntakeMeasuredID:I=0, SoilIngestionID:I=0, "
         "CategoryID:I=0, EstimatorID:I=1, IntakeEquation:T, AssignedSpecies:T, ZOB_SpeciesID:I=0, "
         "DataSourceID:I=6, Comments:M"},
        {"tblContaminantScenario", "ScenarioID:I, ContaminantComments:M, ScenarioComments:M"},
        {"tblScenarioHeader", "ScenarioID:I, Scenario_Comments:M, Scenario_Created_By:T, Scenario_Modified_By:T"},
        {"tblProject",
         "ProjectID:K, Name:T, Purpose:M, Author:T, Location:T, StateProvinceID:I, Latitude:T, Longitude:T, "
         "Comments:M, Path:T, FileName:T, LastSaved:D"},
        {"jtblProjectScenario", "ProjectID:I, ScenarioID:I"},
        {"tblUser",
         "UserID:K, User:T, Name:T, Department:T, Address:T, City:T, PostalCode:T, Province:T, Country:T, "
         "EMail:T, Phone:T, Fax:T, ReportHeader1:T, ReportHeader2:T, PathDatabase:T, PathExport:T, "
         "PathProject:T, PathScenario:T, PathReport:T"},
        {"tblComments", "UserID:I, Comment:T"},
        {"tblLogChanges", "Table_Name:T, Table_Unique_Field:T"},

        // --- reference data ----------------------------------------------------------------------
        {"tblSpecies",
         "SpeciesID:K, Common:T, Latin:T, TaxonID:I, DataSourceID:I=6, Distribution:M, Habitat:M, GenDiet:M, "
         "Related:M, " CLASSIFICATION},
        {"jtblSpeciesReference",
         "SpeciesID:I, ReferenceID:I, IsDistribution:B=0, IsHabitat:B=0, IsDiet:B=0, IsRelated:B=0"},
        {"tblWeight",
         "WeightID:K, SpeciesID:I, Mean:N, Min:N, Max:N, Sample:N, VarValue:N, VarianceTypeID:I, StatusID:I, "
         "GenderID:I, LifestageID:I, HabitatTypeID:I, BegMonthID:I, EndMonthID:I, Location:T, Region:T, "
         "Latitude:T, Longitude:T, Notes:M, ReferenceID:I, DataSourceID:I=6"},
        {"tblDiet",
         "DietID:K, fldDiet_ID:I, SpeciesID:I, DataTypeID:I, DietTypeID:I, MeasureTermID:I, MaterialAnalyzedID:I, "
         "AnalysisNotes:M, CollectionNotes:M, GenderID:I, LifestageID:I, HabitatTypeID:I, BegMonthID:I, "
         "EndMonthID:I, Location:T, Region:T, Latitude:T, Longitude:T, StateProvinceID:I, ReferenceID:I, "
         "DataSourceID:I=6, Notes:M, fldDIET_LOCATION:T, fldDIET_COMMENTS:M, fldDIET_Context:M, AnalysisID:I"},
        {"tblDietItem",
         "DietItemID:K, DietID:I, Name:T, Comments:M, WetValue:N, DryValue:N, Wet_Proportion:N, Dry_Proportion:N, "
         "Sample:N, GrossEnergyID:I, AEID:I, WaterConversionID:I, WaterPercent:N, WaterPercentDS:I, "
         "TrophicLevelID:I, TrophicLevel:N, TrophiclevelDS:I, " CLASSIFICATION ", Genus:T, Species:T, "
         "ComponentID:I, LifestageID:I, N_Unit:N, Bio_Availability:N, DataSourceID:I=6"},
        {"tblGrossEnergy",
         "GrossEnergyID:K, Item:T, WET_WT_KCALG:N, Min_W:N, Max_W:N, Variance_ww:N, DRY_WT_KCALG:N, Min_D:N, "
         "Max_D:N, Variance_dw:N, VarianceTypeID:I, FoodGroupID:I, ComponentID:I, LifestageID:I, "
         "WaterConversionID:I, WaterPercent:N, WaterPercentDS:I, Comments:M, " CLASSIFICATION ", "
         "ReferenceID:I, DataSourceID:I"},
        {"tblAE",
         "AEID:K, ConsumerName:T, ConsumerGenus:T, ConsumerSpecies:T, FoodName:T, FoodGenus:T, FoodSpecies:T, "
         "TaxonID:I, FoodGroupID:I, Mean:N, Min:N, Max:N, Sample:N, VarValue:N, VarianceTypeID:I, ComponentID:I, "
         "LifestageID:I, Comments:M, " CLASSIFICATION ", ReferenceID:I, DataSourceID:I"},
        {"tblWaterConversion",
         "WaterConversionID:K, Item:T, Genus:T, Species:T, Mean:N, Min:N, Max:N, Sample:N, VarValue:N, VarianceTypeID:I, "
         "FoodGroupID:I, HabitatTypeID:I, ComponentID:I, LifestageID:I, Comments:M, " CLASSIFICATION ", "
         "ReferenceID:I, DataSourceID:I"},
        {"tblTrophicLevel",
         "TrophicLevelID:K, Item:T, Genus:T, Species:T, TrophicLevel:N, Min:N, Max:N, Sample:N, VarValue:N, "
         "VarianceTypeID:I, HabitatTypeID:I, Notes:M, " CLASSIFICATION ", ReferenceID:I, DataSourceID:I"},
        {"tblIntakeModel",
         "IntakeModelID:K, IntakeTypeID:I, TaxonID:I, CategoryID:I, ModelDescriptionID:I, a:N, b:N, MMF:N, UCF:N, "
         "WtUnitsID:I, EqnUnitsID:I, FinalUnitsID:I, Sample:N, r2:N, Mean_log_X:N, c:N, d:N, e:N, "
         "ReferenceID:I, DataSourceID:I"},
        {"tblIntakeMeasured",
         "IntakeMeasuredID:K, SpeciesID:I, IntakeTypeID:I, StatusID:I, GenderID:I, VarianceTypeID:I, UnitsID:I, "
         "Mean:N, Min:N, Max:N, Sample:N, VarValue:N, Note:M, ReferenceID:I, DataSourceID:I"},
        {"tblSoilIngestion",
         "SoilIngestionID:K, TaxonID:I, Species:T, Sample:N, IntakeMean:N, UnitsID:I, Ash_Scat_Mean:N, "
         "Ash_Scat_Min:N, Ash_Scat_Max:N, Ash_Scat_VarValue:N, VarianceTypeID:I, a_Digest:N, b_Ash_Food:N, "
         "c_Ash_Soil:N, StateProvinceID:I, Comments:M, ReferenceID:I, DataSourceID:I"},
        {"tblReferences",
         "ReferenceID:K, fldRef_Author:T, fldRef_Year:T, fldRef_Title:T, fldRef_Source:T, DataSourceID:I"},
        {"tblLIFEHISTORYTEXT",
         "SpeciesID:I, LifeText_Type:T, LIFEHIST_TEXT:M, Ref1:I, Ref2:I, Ref3:I, Ref4:I, Ref5:I, Ref6:I, "
         "Ref7:I, Ref8:I, Ref9:I, Ref10:I, Ref11:I, Ref12:I, Ref13:I, Ref14:I, Ref15:I, GenRef1:I, GenRef2:I, "
         "GenRef3:I, GenRef4:I, GenRef5:I, GenRef6:I, GenRef7:I"},
        {"tblPOPDENS",
         "SpeciesID:I, FactorID:I, Popsize_id:I, GenderID:I, LifestageID:I, VarianceTypeID:I, ReferenceID:I, "
         "fldMonthSeason:T, fldHabitat:T, location:T, units:T, mean:N, min:N, max:N, sd_se:N, minmaxtype:T, "
         "notes:M, condition_id:I"},
        {"tblSEASON",
         "SpeciesID:I, Activity_ID:I, ReferenceID:I, begmonth_code:I, peakmonth_code:I, endmonth_code:I, "
         "location:T, notes:M"},

        // --- classification ----------------------------------------------------------------------
        {"tblKingdom", "KingdomID:K, Name:T, Description:T"},
        {"tblSubkingdom", "SubkingdomID:K, KingdomID:I, Name:T, Description:T"},
        {"tblPhylum", "PhylumID:K, SubkingdomID:I, Name:T, Description:T"},
        {"tblClass", "ClassID:K, PhylumID:I, Name:T, Description:T"},
        {"tblOrder", "OrderID:K, ClassID:I, Name:T, Description:T"},
        {"tblFamily", "FamilyID:K, OrderID:I, Name:T, Description:T"},
        {"tblGenus", "GenusID:K, FamilyID:I, Name:T, Description:T"},
        {"jKingdomLifestage", "KingdomID:I, LifeStageID:I"},
        {"jtblKingdomComponent", "KingdomID:I, ComponentID:I"},

        // --- lookups -----------------------------------------------------------------------------
        {"tblDataSource", "DataSourceID:K, Description:T, ForeColor:I=0, IsLocked:B=0"},
        {"tblStatus", "StatusID:K, Description:T"},
        {"tblGender", "GenderID:K, Description:T"},
        {"tblMonth", "MonthID:K, Description:T"},
        {"tblEstimator", "EstimatorID:K, Description:T"},
        {"tblIntakeType", "IntakeTypeID:K, Description:T, IsModel:B=0"},
        {"tblCategory", "CategoryID:K, Description:T"},
        {"tblModelDescription", "ModelDescriptionID:K, Description:T, IntakeTypeID:I"},
        {"tblTaxon", "TaxonID:K, Description:T"},
        {"tblHabitatType", "HabitatTypeID:K, Type:T, Description:T, List:T, Habitat_type:T"},
        {"tblLifeStage", "LifeStageID:K, Description:T"},
        {"tblComponent", "ComponentID:K, Description:T"},
        {"tblFoodGroup", "FoodGroupID:K, Description:T"},
        {"tblMeasureTerm", "MeasureTermID:K, Term:T, Description:T, MEASURE_Description:T, WeightIsWet:B=0"},
        {"tblMaterialAnalyzed", "MaterialAnalyzedID:K, Means:T, Description:T"},
        {"tblAnalysis", "AnalysisID:K, Analysis_Means:T, Analysis_Description:T"},
        {"tblDietType", "DietTypeID:K, Description:T"},
        {"tblDataType", "DataTypeID:K, Description:T"},
        {"tblStateProvince", "StateProvinceID:K, Type:T, Description:T"},
        {"tblVarianceType", "VarianceTypeID:K, Description:T"},
        {"tblUnits", "UnitsID:K, Description:T, Factor:N"},
        {"tblFactor", "FactorID:K, description:T"},
        {"tblPOPSIZEselect", "POPSIZE_ID:K, POPSIZE_Type:T, POPSIZE_class:T"},
        {"tblActivity", "ACTIVITY_ID:K, Activity_type:T, Acitivity_class:T"},
        {"tblDescriptor", "DescriptorID:K, fldDescriptor:T, fldUnits:T"},
        {"tblTableList",
         "TableListID:K, Name:T, ActualTableName:T, Field1:T, Field2:T, Field3:T, Label1:T, Label2:T, Label3:T, "
         "L1IsVisible:B=0, L2IsVisible:B=0, L3IsVisible:B=0, F1IsVisible:B=0, F2IsVisible:B=0, F3IsVisible:B=0"},
    };
    return defs;
}

#undef CLASSIFICATION

struct ColumnDef {
    QString name;
    QChar kind;
    QString defaultValue;  // empty: none
};

QList<ColumnDef> parseColumns(const char *text)
{
    QList<ColumnDef> out;
    const QStringList parts = QString::fromLatin1(text).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &raw : parts) {
        const QString part = raw.trimmed();
        const qsizetype colon = part.indexOf(QLatin1Char(':'));
        ColumnDef c;
        c.name = part.left(colon);
        const QString rest = part.mid(colon + 1);
        c.kind = rest.at(0);
        if (rest.size() > 2 && rest.at(1) == QLatin1Char('='))
            c.defaultValue = rest.mid(2);
        out.append(c);
    }
    return out;
}

QString columnDdl(const ColumnDef &c)
{
    QString type;
    switch (c.kind.toLatin1()) {
    case 'K': type = QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT"); break;
    case 'I': type = QStringLiteral("INTEGER"); break;
    // BOOLEAN has numeric affinity (stored 1/0); the declared type lets recordsets read it as yes/no.
    case 'B': type = QStringLiteral("BOOLEAN"); break;
    case 'T':
    case 'M': type = QStringLiteral("TEXT COLLATE NOCASE"); break;
    case 'N': type = QStringLiteral("REAL"); break;
    case 'D': type = QStringLiteral("DATETIME"); break;
    default: Q_UNREACHABLE();
    }
    QString ddl = QLatin1Char('[') + c.name + QStringLiteral("] ") + type;
    if (!c.defaultValue.isEmpty())
        ddl += QStringLiteral(" DEFAULT ") + c.defaultValue;
    // A number column takes a number, or text that reads as one (the column's affinity has converted
    // it before the check), and refuses any other text, a blob and an infinity. The key refuses them
    // by itself.
    if (c.kind == QLatin1Char('I') || c.kind == QLatin1Char('N') || c.kind == QLatin1Char('B'))
        ddl += QStringLiteral(" CONSTRAINT [%1] CHECK (typeof([%1]) IN ('integer', 'real', 'null') "
                              "AND [%1] BETWEEN -1.7976931348623157e308 AND 1.7976931348623157e308)")
                   .arg(c.name);
    return ddl;
}

//! Indexes that only make reading faster: a file without them is correct, only slower.
QStringList speedIndexes()
{
    // Windows and calculations read a scenario's, a species', a diet's or a reference's rows of the
    // tables that refer to it, and the value lists join the references to their values from the
    // references' side: without an index each of these reads scans the whole table, once per row of
    // the other side in a join.
    QStringList out;
    for (const TableDef &t : tableDefs())
        for (const ColumnDef &c : parseColumns(t.columns))
            for (const char *link : {"ScenarioID", "SpeciesID", "DietID", "ReferenceID"})
                if (c.kind != QLatin1Char('K') && c.name == QLatin1String(link))
                    out.append(QStringLiteral("CREATE INDEX IF NOT EXISTS %1_%2 ON %1 (%3)")
                                   .arg(QLatin1String(t.name), c.name.chopped(2), c.name));
    // Long lists read in one order: the project list, the program's first window, by name, and the
    // state and province lists of the project, diet and weight windows by description (the project
    // window's by type first). With an index the first screen of rows comes without sorting them all.
    out.append(QStringLiteral("CREATE INDEX IF NOT EXISTS tblProject_Name ON tblProject (Name)"));
    out.append(QStringLiteral("CREATE INDEX IF NOT EXISTS tblStateProvince_Description ON tblStateProvince (Description)"));
    out.append(QStringLiteral("CREATE INDEX IF NOT EXISTS tblStateProvince_TypeDescription ON tblStateProvince (Type, Description)"));
    return out;
}

const char *const kReferenceView =
    "CREATE VIEW qryReference AS SELECT ReferenceID, "
    "COALESCE(fldRef_Author,'') || '. ' || COALESCE(fldRef_Year,'') || '. ' || "
    "COALESCE(fldRef_Title,'') || '. ' || COALESCE(fldRef_Source,'') || '. ' AS Reference "
    "FROM tblReferences";

}  // namespace

QStringList schemaStatements()
{
    QStringList out;
    for (const TableDef &t : tableDefs()) {
        QStringList cols;
        for (const ColumnDef &c : parseColumns(t.columns))
            cols.append(columnDdl(c));
        out.append(QStringLiteral("CREATE TABLE [%1] (%2)").arg(QLatin1String(t.name), cols.join(QStringLiteral(", "))));
    }
    out.append(QLatin1String(kReferenceView));
    // A scenario is linked to a project once: a second link is a duplicate key.
    out.append(QStringLiteral("CREATE UNIQUE INDEX jtblProjectScenario_Link ON jtblProjectScenario (ProjectID, ScenarioID)"));
    out.append(speedIndexes());
    return out;
}

QStringList schemaTables()
{
    QStringList out;
    for (const TableDef &t : tableDefs())
        out.append(QLatin1String(t.name));
    return out;
}

const QMap<QString, QStringList> &schemaColumns()
{
    static const QMap<QString, QStringList> map = [] {
        QMap<QString, QStringList> m;
        for (const TableDef &t : tableDefs()) {
            QStringList names;
            for (const ColumnDef &c : parseColumns(t.columns))
                names.append(c.name);
            m.insert(QLatin1String(t.name), names);
        }
        return m;
    }();
    return map;
}

void upgradeSchema(sqlite3 *db)
{
    auto exec = [db](const QString &sql) {
        char *err = nullptr;
        if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err) != SQLITE_OK) {
            const QString message = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
            sqlite3_free(err);
            throw VbError(VbErr::GenericDbError, QStringLiteral("Cannot upgrade the database: %1 (%2)").arg(message, sql.left(80)));
        }
    };
    for (const TableDef &t : tableDefs()) {
        QStringList present;
        sqlite3_stmt *stmt = nullptr;
        const QByteArray info = QStringLiteral("PRAGMA table_info([%1])").arg(QLatin1String(t.name)).toUtf8();
        if (sqlite3_prepare_v2(db, info.constData(), -1, &stmt, nullptr) == SQLITE_OK)
            while (sqlite3_step(stmt) == SQLITE_ROW)
                present.append(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 1))).toLower());
        sqlite3_finalize(stmt);
        if (present.isEmpty())
            continue;  // a table the file lacks is not added here: such a file is refused on opening
        for (const ColumnDef &c : parseColumns(t.columns))
            if (!present.contains(c.name.toLower()))
                exec(QStringLiteral("ALTER TABLE [%1] ADD COLUMN %2").arg(QLatin1String(t.name), columnDdl(c)));
    }
    // A file from an earlier version gets the indexes added since. They only make reading faster, so a
    // file that cannot take them (opened read-only, or locked by another program) goes on without.
    if (!sqlite3_db_readonly(db, "main"))
        for (const QString &index : speedIndexes())
            sqlite3_exec(db, index.toUtf8().constData(), nullptr, nullptr, nullptr);
}

void createSchema(sqlite3 *db)
{
    auto exec = [db](const QString &sql) {
        char *err = nullptr;
        if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &err) != SQLITE_OK) {
            const QString message = QString::fromUtf8(err ? err : sqlite3_errmsg(db));
            sqlite3_free(err);
            sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
            throw VbError(VbErr::GenericDbError,
                          QStringLiteral("Cannot create the schema: %1 (%2)").arg(message, sql.left(80)));
        }
    };
    exec(QStringLiteral("BEGIN"));
    for (const QString &statement : schemaStatements())
        exec(statement);
    exec(QStringLiteral("COMMIT"));
}

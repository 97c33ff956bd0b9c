// SPDX-License-Identifier: MIT
#include "LifeHistorySql.h"

#include "Database.h"
#include "Recordset.h"

#include <array>

namespace LifeHistorySql {

namespace {
struct Topic {
    const char *array;
    const char *caption;
    const char *clause;
};

// The topics of the text pages, each option array's rows in index order.
const std::array<Topic, 13> kTopics{{
    {"optGeneral", "Order/Family Info", " AND LifeText_Type = 'order/family'"},
    {"optGeneral", "Selected Species/General Info", " AND LifeText_Type = 'general'"},
    {"optGeneral", "Similar Species Info", " AND LifeText_Type = 'simspecies'"},
    {"optDietIntakeRate", "Food Habits (General)", " AND LifeText_Type = 'food habit'"},
    {"optDietIntakeRate", "Metabolism (General)", " AND LifeText_Type = 'metabolism'"},
    {"optPopulationHabitat", "Pop Dynamics", " AND LifeText_Type = 'popdyn'"},
    {"optPopulationHabitat", "Pop Density", " AND LifeText_Type = 'popdens'"},
    {"optPopulationHabitat", "Habitat", " AND LifeText_Type = 'habitat'"},
    {"optPopulationHabitat", "Home Range and Territory", " AND LifeText_Type = 'home range'"},
    {"optSeasonActivityGeneral", "Molt", " AND LifeText_Type = 'molt'"},
    {"optSeasonActivityGeneral", "Migration", " AND LifeText_Type = 'migration'"},
    {"optSeasonActivityGeneral", "Breed/Social", " AND LifeText_Type = 'breed/social'"},
    {"optSeasonActivityGeneral", "Temp Reg/Development",
     " AND LifeText_Type  IN ('tempreg/daily activities', 'tempreg/molt')"},
}};

QList<const Topic *> topicsOf(const QString &optionArray)
{
    QList<const Topic *> rows;
    for (const Topic &t : kTopics)
        if (optionArray == QLatin1String(t.array))
            rows << &t;
    return rows;
}

const QString kSearchSelect = QStringLiteral(
    "SELECT tblSpecies.SpeciesID, tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin, "
    "tblSpecies.DataSourceID FROM tblSpecies INNER JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID");

// The sex clause of the weights and diets: option 0 Male, 1 Female, 2 Both, anything else none.
QString sexClause(const QString &head, int sex)
{
    static const int ids[] = {4, 5, 1};
    return sex >= 0 && sex < 3 ? head + QString::number(ids[sex]) : QString();
}

const QString kFactorColumns = QStringLiteral(
    "tblLifeStage.Description AS Lifestage, tblPOPDENS.mean, tblPOPDENS.min, tblPOPDENS.max, tblPOPDENS.sd_se, "
    "tblPOPDENS.units, tblPOPDENS.location, tblPOPDENS.fldHabitat, tblPOPDENS.fldMonthSeason, tblPOPDENS.notes, "
    "qryReference.Reference");
}  // namespace

QString searchWhere(const SearchCriteria &c)
{
    QString w;
    if (!c.species.isEmpty())
        w += QStringLiteral(" (tblSpecies.Common like '*%1*'  OR tblSpecies.Latin like '*%1*') AND").arg(c.species);
    if (!c.taxonId.isEmpty())
        w += QStringLiteral(" (tblSpecies.TaxonID  = %1) AND ").arg(c.taxonId);
    if (!c.habitat.isEmpty())
        w += QStringLiteral(" (tblSpecies.Habitat like '*%1*') AND ").arg(c.habitat);
    if (!c.dietItem.isEmpty())
        w += QStringLiteral(" tblSpecies.SpeciesID In ( SELECT tblDiet.SpeciesID FROM tblDietItem INNER JOIN tblDiet ON "
                            "tblDietItem.DietID = tblDiet.DietID WHERE (tblDietItem.Name Like '*%1*')) AND ")
                 .arg(c.dietItem);
    if (!c.trophicFrom.isEmpty() || !c.trophicTo.isEmpty())
        w += QStringLiteral(" tblSpecies.SpeciesID In (SELECT tblDiet.SpeciesID FROM (tblDiet INNER JOIN tblDietItem ON "
                            "tblDiet.DietID = tblDietItem.DietID) INNER JOIN tblTrophicLevel ON tblDietItem.TrophicLevelID = "
                            "tblTrophicLevel.TrophicLevelID GROUP BY tblDiet.SpeciesID HAVING Avg(tblTrophicLevel.TrophicLevel) "
                            "Between '%1' And '%2')")
                 .arg(c.trophicFrom, c.trophicTo);
    w = w.trimmed();
    if (w.endsWith(QLatin1String("AND")))
        w.chop(3);
    return w;
}

QString searchStatement(const QString &where)
{
    QString sql = kSearchSelect;
    if (!where.isEmpty())
        sql += QStringLiteral(" Where ") + where;
    return sql + QStringLiteral(" ORDER BY tblTaxon.Description, tblSpecies.Common");
}

QString textStatement(qint32 speciesId, const QString &clause)
{
    return QStringLiteral("Select * FROM tblLIFEHISTORYTEXT WHERE SpeciesID = ") + QString::number(speciesId) + clause;
}

QString topicClause(const QString &optionArray, int index)
{
    if (optionArray == QLatin1String("optBodySize"))
        return QStringLiteral(" AND LifeText_Type = 'body size'");
    const auto rows = topicsOf(optionArray);
    return index >= 0 && index < rows.size() ? QString::fromLatin1(rows[index]->clause) : QString();
}

QStringList topicCaptions(const QString &optionArray)
{
    QStringList captions;
    for (const Topic *t : topicsOf(optionArray))
        captions << QString::fromLatin1(t->caption);
    return captions;
}

QString referenceClause(const QStringList &values)
{
    QString list;
    for (const QString &v : values)
        if (!v.trimmed().isEmpty())
            list += v + QStringLiteral(", ");
    if (list.isEmpty())
        return {};
    list.chop(2);
    return QStringLiteral(" IN ( ") + list + QStringLiteral(" ) ");
}

QStringList referenceValues(const Recordset &row, const QString &prefix, int count)
{
    QStringList values;
    for (int i = 1; i <= count; ++i)
        values << row.field(prefix + QString::number(i)).toString();
    return values;
}

QString referenceText(Database &db, const QString &clause)
{
    if (clause.isEmpty())
        return {};
    auto rs = db.OpenRecordset(QStringLiteral("Select * from tblReferences where ReferenceID ") + clause
                                   + QStringLiteral("order by fldRef_Author"),
                               RecordsetType::Snapshot);
    QString text;
    const QString stop = QStringLiteral(". ");
    qint16 number = 0;
    for (; !rs->EOF_(); rs->MoveNext()) {
        ++number;
        text += QString::number(number) + QStringLiteral(".  ") + rs->field(QStringLiteral("fldRef_Author")).toString()
                + stop + rs->field(QStringLiteral("fldRef_Year")).toString();
        if (!text.endsWith(stop))
            text += stop;
        text += rs->field(QStringLiteral("fldRef_Title")).toString();
        if (!text.endsWith(stop))
            text += stop;
        text += rs->field(QStringLiteral("fldRef_Source")).toString() + QStringLiteral("\r\n");
    }
    rs->Close();
    return text;
}

QString weightStatement(qint32 speciesId, int sex, int lifestage, int status)
{
    // Gender, status, lifestage and reference are required of a weight; months, habitat and variance
    // type are often blank and must not hide the weight.
    QString sql = QStringLiteral(
        "SELECT tblGender.Description AS Gender, tblStatus.Description AS Status, tblMonth.Description AS BegMonth, "
        "tblMonth_1.Description AS EndMonth, tblLifeStage.Description AS Lifestage, tblWeight.Mean, tblWeight.Min, "
        "tblWeight.Max, tblWeight.Sample, tblWeight.VarValue, tblVarianceType.Description AS VarianceType, "
        "tblHabitatType.Description AS Habitat, tblWeight.Location, tblWeight.Region, tblWeight.Notes, "
        "qryReference.Reference FROM (((((((tblWeight INNER JOIN tblGender ON tblWeight.GenderID = tblGender.GenderID) "
        "INNER JOIN tblStatus ON tblWeight.StatusID = tblStatus.StatusID) "
        "INNER JOIN tblLifeStage ON tblWeight.LifestageID = tblLifeStage.LifeStageID) "
        "INNER JOIN qryReference ON tblWeight.ReferenceID = qryReference.ReferenceID) "
        "LEFT JOIN tblMonth ON tblWeight.BegMonthID = tblMonth.MonthID) "
        "LEFT JOIN tblMonth AS tblMonth_1 ON tblWeight.EndMonthID = tblMonth_1.MonthID) "
        "LEFT JOIN tblHabitatType ON tblWeight.HabitatTypeID = tblHabitatType.HabitatTypeID) "
        "LEFT JOIN tblVarianceType ON tblWeight.VarianceTypeID = tblVarianceType.VarianceTypeID");
    sql += QStringLiteral(" WHERE tblWeight.SpeciesID = ") + QString::number(speciesId);
    sql += sexClause(QStringLiteral(" AND tblWeight.GenderID = "), sex);
    if (lifestage == 0)
        sql += QStringLiteral(" AND tblLifeStage.Description = 'adult'");
    else if (lifestage == 1)
        sql += QStringLiteral(" AND tblLifeStage.Description <> 'adult'");
    if (status == 0)
        sql += QStringLiteral(" AND tblWeight.StatusID = 1");
    else if (status == 1)
        sql += QStringLiteral(" AND tblWeight.StatusID = 2");
    return sql;
}

QString dietStatement(qint32 speciesId, int lifestage, int sex)
{
    QString sql = QStringLiteral(
        "SELECT tblMonth.Description AS BegMonth, tblMonth_1.Description AS EndMonth, tblStateProvince.Description AS State, "
        "tblDiet.DietID, tblAnalysis.Analysis_Means AS Analysis, tblDataType.Description AS Method, "
        "tblMeasureTerm.Term, tblLifeStage.Description AS Lifestage, tblGender.Description AS Gender, "
        "tblDiet.Location, tblDiet.Notes, qryReference.Reference FROM ((((((((tblDiet "
        "LEFT JOIN tblMonth ON tblDiet.BegMonthID = tblMonth.MonthID) "
        "LEFT JOIN tblMonth AS tblMonth_1 ON tblDiet.EndMonthID = tblMonth_1.MonthID) "
        "LEFT JOIN tblStateProvince ON tblDiet.StateProvinceID = tblStateProvince.StateProvinceID) "
        "LEFT JOIN tblAnalysis ON tblDiet.AnalysisID = tblAnalysis.AnalysisID) "
        "LEFT JOIN tblDataType ON tblDiet.DataTypeID = tblDataType.DataTypeID) "
        "LEFT JOIN tblMeasureTerm ON tblDiet.MeasureTermID = tblMeasureTerm.MeasureTermID) "
        "LEFT JOIN tblLifeStage ON tblDiet.LifestageID = tblLifeStage.LifeStageID) "
        "LEFT JOIN tblGender ON tblDiet.GenderID = tblGender.GenderID) "
        "LEFT JOIN qryReference ON tblDiet.ReferenceID = qryReference.ReferenceID");
    sql += QStringLiteral(" WHERE tblDiet.SpeciesID = ") + QString::number(speciesId);
    // The lifestage goes by id here, not by its description as for the weights.
    if (lifestage == 0)
        sql += QStringLiteral(" AND tblLifeStage.LifestageID = 7");
    else if (lifestage == 1)
        sql += QStringLiteral(" AND tblLifeStage.lifestageID <> 7");
    return sql + sexClause(QStringLiteral(" AND tblDiet.GenderID =  "), sex);
}

const QList<int> &growthFactors()
{
    static const QList<int> ids{8, 6, 7, 10};
    return ids;
}

const QList<int> &intakeFactors()
{
    static const QList<int> ids{3, 4, 5, 11, 2};
    return ids;
}

QString factorStatement(qint32 speciesId, int factorId, bool growth)
{
    // The growth statement keeps rows with no factor or lifestage row (outer joins from the records,
    // which the engine plans better than the same joins written from the lookups); the intake statement
    // drops them.
    const QString from = growth
        ? QStringLiteral(" FROM ((tblPOPDENS LEFT JOIN tblFactor ON tblPOPDENS.FactorID = tblFactor.FactorID) "
                         "LEFT JOIN tblLifeStage ON tblPOPDENS.LifestageID = tblLifeStage.LifeStageID) "
                         "LEFT JOIN qryReference ON tblPOPDENS.ReferenceID = qryReference.ReferenceID")
        : QStringLiteral(" FROM ((tblPOPDENS INNER JOIN tblFactor ON tblPOPDENS.FactorID = tblFactor.FactorID) "
                         "INNER JOIN tblLifeStage ON tblPOPDENS.LifestageID = tblLifeStage.LifeStageID) "
                         "LEFT JOIN qryReference ON tblPOPDENS.ReferenceID = qryReference.ReferenceID");
    return QStringLiteral("SELECT tblFactor.description AS Factor, ") + kFactorColumns + from
           + QStringLiteral(" WHERE tblPOPDENS.SpeciesID = ") + QString::number(speciesId)
           + QStringLiteral(" AND tblPOPDENS.FactorID = ") + QString::number(factorId);
}

QString populationStatement(qint32 speciesId, const QString &sizeClass)
{
    return QStringLiteral(
               "SELECT tblPOPSIZEselect.POPSIZE_Type AS Measure, tblGender.Description AS Gender, ")
           + kFactorColumns
           + QStringLiteral(
               " FROM ((((tblPOPDENS INNER JOIN tblPOPSIZEselect ON tblPOPDENS.Popsize_id = tblPOPSIZEselect.POPSIZE_ID) "
               "INNER JOIN tblFactor ON tblPOPDENS.FactorID = tblFactor.FactorID) "
               "INNER JOIN tblGender ON tblPOPDENS.GenderID = tblGender.GenderID) "
               "INNER JOIN tblLifeStage ON tblPOPDENS.LifestageID = tblLifeStage.LifeStageID) "
               "INNER JOIN qryReference ON tblPOPDENS.ReferenceID = qryReference.ReferenceID")
           + QStringLiteral(" WHERE (tblPOPDENS.SpeciesID = %1) AND (tblPOPSIZEselect.POPSIZE_class = '%2')")
                 .arg(speciesId)
                 .arg(sizeClass);
}

QString seasonStatement(qint32 speciesId, const QString &activityClass)
{
    return QStringLiteral(
               "SELECT tblSEASON.*, tblActivity.Activity_type, qryReference.Reference FROM (tblSEASON INNER JOIN "
               "tblActivity ON tblSEASON.Activity_ID = tblActivity.ACTIVITY_ID) INNER JOIN qryReference ON "
               "tblSEASON.ReferenceID = qryReference.ReferenceID")
           + QStringLiteral(" WHERE (tblSEASON.SpeciesID = %1) AND (tblActivity.Acitivity_class = '%2')")
                 .arg(speciesId)
                 .arg(activityClass);
}

}  // namespace LifeHistorySql

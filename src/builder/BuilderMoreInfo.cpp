// SPDX-License-Identifier: MIT
#include "BuilderMoreInfo.h"

#include "ControlValue.h"
#include "DataSourceText.h"
#include "Session.h"
#include "Utilities.h"
#include "clsScenario.h"
#include "frmZOB.h"

namespace {
const QString kNoRecord = QStringLiteral("More Information not available. Please select a record from the database. ");

RecordRequest readOnly(qint32 id, const QString &keyField, const QString &table)
{
    RecordRequest request;
    request.recordId = id;
    request.keyField = keyField;
    request.table = table;
    request.mode = QStringLiteral("Read");
    return request;
}

//! The refusal for a user-entered record, true when given.
bool refused(Session &s, qint32 dataSource, const char *what)
{
    if (dataSource != 2)
        return false;
    s.msgBox(QStringLiteral("Information not available for user entered %1.").arg(QString::fromLatin1(what)), QString(),
             MsgIcon::Warning);
    return true;
}

//! The intake page: the equation or measurement behind a rate, or the soil ingestion record.
bool intakeRecord(frmZOB &w, int sub)
{
    Session &s = w.session();
    clsScenario &sc = *s.gScenario;
    if (sub <= 2) {
        const qint32 categories[3] = {sc.AirCategoryID, sc.WatCategoryID, sc.FMRCategoryID};
        if (categories[sub] == 0)
            return false;
        const QVariant taxon = s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("TaxonID"),
                                        QStringLiteral("SpeciesID = %1").arg(sc.SpeciesID));
        // A species without a taxon is looked at as a mammal.
        RecordRequest request = readOnly(sub, {}, {});
        request.selectedId = taxon.toString() == kNotFound ? 2 : taxon.toInt();
        w.openWindow(QStringLiteral("frmSelect_Intake"), request, true);
        return true;
    }
    if (sub == 3) {
        sc.SoilID = s.Lookup(QStringLiteral("tblIntakeZOB"), QStringLiteral("SoilIngestionID"),
                             QStringLiteral("ScenarioID = %1 AND IntakeTypeID = 4").arg(sc.SID)).toInt();
        if (sc.SoilID == 0)
            return false;
        w.openWindow(QStringLiteral("frmDE_SoilIngestion"), readOnly(sc.SoilID, {}, {}), false);
        return true;
    }
    return false;
}
}  // namespace

void showMoreInformation(frmZOB &w, int page, int intakePage)
{
    Session &s = w.session();
    clsScenario &sc = *s.gScenario;
    switch (page) {
    case 0:
        if (refused(s, sc.Species_DataSource, "Species"))
            return;
        if (sc.SpeciesID != 0) {
            w.openWindow(QStringLiteral("frmDE_Species"), readOnly(sc.SpeciesID, QStringLiteral("SpeciesID"), QStringLiteral("tblSpecies")),
                         false);
            return;
        }
        break;
    case 1:
        if (refused(s, sc.Wt_DataSource, "weight"))
            return;
        if (sc.WeightID != 0) {
            w.openWindow(QStringLiteral("frmDE_Weight"), readOnly(sc.WeightID, QStringLiteral("WeightID"), QStringLiteral("tblWeight")),
                         false);
            return;
        }
        break;
    case 2:
        if (refused(s, sc.Diet_DataSource, "diet"))
            return;
        if (sc.DietID != 0) {
            w.openWindow(QStringLiteral("frmSelect_Diet"), readOnly(sc.DietID, {}, {}), false);
            return;
        }
        break;
    case 3: {
        arrayItem<QWidget>(&w, QStringLiteral("cmdMoreInfo"), 3)->setVisible(true);
        const QString source = ControlValue::text(arrayItem<QWidget>(&w, QStringLiteral("LbLDataSource"), 3 + intakePage));
        // A typed rate shows the words of data source 2, whatever the database calls that source.
        if (source == QLatin1String("Data Source: User entered  ")
            || source == QStringLiteral("Data Source: ") + GetDataSourceText(s, 2) + QStringLiteral("  ")) {
            s.msgBox(QStringLiteral("More Information not available for user entered data."), QString(), MsgIcon::Information);
            return;
        }
        if (intakeRecord(w, intakePage))
            return;
        break;
    }
    default:
        break;
    }
    s.msgBox(kNoRecord, QString(), MsgIcon::Information);
}

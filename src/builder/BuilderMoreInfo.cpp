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
    if (page >= 0 && page <= 2) {
        // The record behind the species, weight and diet pages, and the window that shows it.
        struct PageRecord {
            qint32 dataSource;
            qint32 id;
            const char *what, *window, *keyField, *table;
        };
        const PageRecord records[3] = {
            {sc.Species_DataSource, sc.SpeciesID, "Species", "frmDE_Species", "SpeciesID", "tblSpecies"},
            {sc.Wt_DataSource, sc.WeightID, "weight", "frmDE_Weight", "WeightID", "tblWeight"},
            {sc.Diet_DataSource, sc.DietID, "diet", "frmSelect_Diet", "", ""},
        };
        const PageRecord &r = records[page];
        if (refused(s, r.dataSource, r.what))
            return;
        if (r.id != 0) {
            w.openWindow(QString::fromLatin1(r.window),
                         readOnly(r.id, QString::fromLatin1(r.keyField), QString::fromLatin1(r.table)), false);
            return;
        }
    } else if (page == 3) {
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
    }
    s.msgBox(kNoRecord, QString(), MsgIcon::Information);
}

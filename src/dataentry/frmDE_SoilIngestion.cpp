// SPDX-License-Identifier: MIT
#include "frmDE_SoilIngestion.h"

#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_SoilIngestion> reg(QStringLiteral("frmDE_SoilIngestion"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Soil Ingestion Data Entry"), .table = QStringLiteral("tblSoilIngestion"),
            .key = QStringLiteral("SoilIngestionID"), .dataControl = QStringLiteral("dcSoilIngestion"),
            .saveRoutine = QStringLiteral("SaveSoilIngestion"), .picker = QStringLiteral("frmSelect_SoilIngestion"),
            .newAddsRow = true, .hasSelect = false};
}
}  // namespace

frmDE_SoilIngestion::frmDE_SoilIngestion(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_SoilIngestion"), entryProfile())
{
    FormBuilder who = body().frame(QStringLiteral("fraSpecies"), QStringLiteral("Species")).fields(2);
    listField(who, QStringLiteral("cboTaxon"), QStringLiteral("Taxon:"), QStringLiteral("TaxonID"), Lookups::taxon());
    textField(who, QStringLiteral("txtSpecies"), QStringLiteral("Species:"), QStringLiteral("Species"));
    textField(who, QStringLiteral("txtSample"), QStringLiteral("Sample Size:"), QStringLiteral("Sample"));
    dataSourceField(who);

    FormBuilder rate = body().frame(QStringLiteral("fraIntake"), QStringLiteral("Soil Ingestion")).fields(2);
    textField(rate, QStringLiteral("txtIntakeMean"), QStringLiteral("Intake Mean:"), QStringLiteral("IntakeMean"));
    listField(rate, QStringLiteral("cboUnits"), QStringLiteral("Units:"), QStringLiteral("UnitsID"), Lookups::units());
    textField(rate, QStringLiteral("txtAshMean"), QStringLiteral("Ash in Scat Mean:"), QStringLiteral("Ash_Scat_Mean"));
    textField(rate, QStringLiteral("txtAshVarValue"), QStringLiteral("Ash in Scat Variance:"), QStringLiteral("Ash_Scat_VarValue"));
    textField(rate, QStringLiteral("txtAshMin"), QStringLiteral("Ash in Scat Min:"), QStringLiteral("Ash_Scat_Min"));
    textField(rate, QStringLiteral("txtAshMax"), QStringLiteral("Ash in Scat Max:"), QStringLiteral("Ash_Scat_Max"));
    listField(rate, QStringLiteral("cboVarianceType"), QStringLiteral("Variance Type:"), QStringLiteral("VarianceTypeID"),
              Lookups::varianceType());
    rate.nextRow();
    textField(rate, QStringLiteral("txtDigest"), QStringLiteral("a (digestibility):"), QStringLiteral("a_Digest"));
    textField(rate, QStringLiteral("txtAshFood"), QStringLiteral("b (ash in food):"), QStringLiteral("b_Ash_Food"));
    textField(rate, QStringLiteral("txtAshSoil"), QStringLiteral("c (ash in soil):"), QStringLiteral("c_Ash_Soil"));
    FormBuilder notes = body().fields();
    textField(notes, QStringLiteral("txtComments"), QStringLiteral("Comments:"), QStringLiteral("Comments"), 3);
    referenceFrame(body());
    resize(760, 600);
}

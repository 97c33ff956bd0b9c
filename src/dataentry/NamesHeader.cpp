// SPDX-License-Identifier: MIT
#include "NamesHeader.h"

#include "Recordset.h"
#include "Session.h"

QString speciesHeaderText(Session &s, qint32 speciesId)
{
    auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin "
                                                  "FROM tblSpecies LEFT JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID "
                                                  "WHERE tblSpecies.SpeciesID = %1")
                                       .arg(speciesId),
                                   RecordsetType::Snapshot);
    QString values[3];
    if (!rs->EOF_()) {
        values[0] = rs->field(QStringLiteral("Taxon")).toString();
        values[1] = rs->field(QStringLiteral("Common")).toString();
        values[2] = rs->field(QStringLiteral("Latin")).toString();
    }
    rs->Close();
    return QStringLiteral("Taxon: %1\nCommon Name: %2\nScientific Name: %3").arg(values[0], values[1], values[2]);
}

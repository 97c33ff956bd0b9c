// SPDX-License-Identifier: MIT
#include "Functions.h"

#include "Recordset.h"
#include "Session.h"
#include "VbError.h"
#include "VbFormat.h"
#include "clsProject.h"
#include "clsScenario.h"

bool ReadFileHeader(Session &s, const QString &path)
{
    try {
        const bool project = path.right(3) == QLatin1String("NAV");
        const int count = project ? 4 : 2;
        const QString line = s.GF_GetFileContent(path);
        const int colon = line.indexOf(QLatin1Char(':'));
        const int comma = colon < 0 ? -1 : line.indexOf(QLatin1Char(','), colon + 1);
        if (colon < 0 || comma < 0)
            throw VbError(VbErr::InvalidProcedureCall, QStringLiteral("Invalid procedure call or argument"));
        const qint32 id = vb::CLng(line.mid(colon + 1, comma - colon - 1).trimmed());
        if (project) {
            if (s.gProject)
                s.gProject->PID = id;
        } else if (s.gScenario) {
            s.gScenario->SID = id;
        }
        QString description;
        int from = comma;
        for (int i = 0; i < count; ++i) {
            const int next = line.indexOf(QLatin1Char(','), from + 1);
            if (next < 0)
                throw VbError(VbErr::InvalidProcedureCall, QStringLiteral("Invalid procedure call or argument"));
            description += line.mid(from + 1, next - from - 1) + QStringLiteral("\r\n");
            from = next;
        }
        if (s.fileChooser)
            s.fileChooser->setDescription(description);
        return true;
    } catch (const VbError &) {
        return false;
    }
}

QString speciesHeaderText(Session &s, qint32 speciesId, bool *found)
{
    auto rs = s.gDB->OpenRecordset(QStringLiteral("SELECT tblTaxon.Description AS Taxon, tblSpecies.Common, tblSpecies.Latin "
                                                  "FROM tblSpecies LEFT JOIN tblTaxon ON tblSpecies.TaxonID = tblTaxon.TaxonID "
                                                  "WHERE tblSpecies.SpeciesID = %1")
                                       .arg(speciesId),
                                   RecordsetType::Snapshot);
    QString values[3];
    if (found)
        *found = !rs->EOF_();
    if (!rs->EOF_()) {
        values[0] = rs->field(QStringLiteral("Taxon")).toString();
        values[1] = rs->field(QStringLiteral("Common")).toString();
        values[2] = rs->field(QStringLiteral("Latin")).toString();
    }
    rs->Close();
    return QStringLiteral("Taxon: %1\nCommon Name: %2\nScientific Name: %3").arg(values[0], values[1], values[2]);
}

// SPDX-License-Identifier: MIT
// The scenario builder opened on a saved scenario with species, weight and a diet with items, and the
// dialogs it opens, each with the request the builder gives it.
#include "Diet.h"
#include "DialogSupport.h"
#include "WindowBench.h"
#include "clsScenario.h"

namespace windowbench {

namespace {
std::unique_ptr<clsScenario> g_saved;   // the scenario as saved, for each reopening
}

qint32 makeScenario(Program &p)
{
    Session &s = p.session;
    if (!s.gScenario)
        s.gScenario = std::make_shared<clsScenario>(s);
    clsScenario &sc = *s.gScenario;
    sc.AddNew(QStringLiteral("Wildlife"));
    sc.FilePath = s.home;
    sc.FileName = QStringLiteral("bench.ZOB");
    sc.SpeciesID = 1;
    sc.Species_DataSource = 5;
    s.gSpeciesCommon = s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("Common"), QStringLiteral("SpeciesID = 1")).toString();
    s.gSpeciesLatin = s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("Latin"), QStringLiteral("SpeciesID = 1")).toString();
    sc.WeightID = 1;
    sc.Weight = 84.9f;
    sc.Wt_DataSource = 4;
    sc.DietID = 1;
    sc.Diet_DataSource = 4;
    sc.Save(QStringLiteral("All"));
    AddWildlifeDiet(s, 1);
    AddWildlifeDietItems(s, 1);
    s.gDB->Execute(QStringLiteral("Update tblIntakeZOB Set AdjustedRate = 2.5, DataSourceID = 2 Where IntakeTypeID < 3 And ScenarioID = %1")
                       .arg(sc.SID));
    g_saved = std::make_unique<clsScenario>(sc);
    return sc.SID;
}

//! The saved scenario made current again, in edit mode, as the project window opens it.
void reopenScenario(Program &p)
{
    p.session.gScenario = std::make_shared<clsScenario>(*g_saved);
    p.session.gScenario->Mode = QStringLiteral("Edit");
}

void benchBuilderWindows(WindowBench &b)
{
    Program &p = b.p;
    Session &s = p.session;
    const QString builder = QStringLiteral("frmZOB");
    b.open(builder, nullptr, [&] { reopenScenario(p); });

    // The builder's dialogs, opened over it.
    RecordRequest species =
        recordOf(QStringLiteral("tblWildlife"), QStringLiteral("ScenarioID"), s.gScenario->SID, QStringLiteral("ReadOnly"));
    species.entry = QStringLiteral("ZOB");
    b.list({QStringLiteral("frmSelect_Species"), QStringLiteral("ssGrdMain"), QStringLiteral("Common"), QStringLiteral("Latin"),
            QStringLiteral("choose a taxon"), QStringLiteral("optSpec(0)"), QStringLiteral("optSpec(1)")},
           species);
    const RecordRequest read = recordOf({}, {}, 0, QStringLiteral("Read"));
    b.list({QStringLiteral("frmSelect_Weight"), QStringLiteral("ssGrdWeight"), QStringLiteral("Mean"), QStringLiteral("Status"),
            QStringLiteral("choose a status"), QStringLiteral("optStatus(1)"), QStringLiteral("optStatus(2)")},
           read);
    b.open(QStringLiteral("frmSelect_Diet"), &read);
    b.close(QStringLiteral("frmSelect_Diet"));
    for (const QString &w : {QStringLiteral("frmFind_Diet"), QStringLiteral("frmSelect_DryWetWeight")}) {
        b.open(w);
        b.close(w);
    }
    b.close(builder);
    reopenScenario(p);
}

}  // namespace windowbench

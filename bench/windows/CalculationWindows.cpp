// SPDX-License-Identifier: MIT
// The calculation windows on the builder's scenario: the intake dialog for each kind of rate the
// builder opens it for, the soil ingestion list, the equations list from the menu and the review.
#include "WindowBench.h"
#include "WindowLinks.h"
#include "clsScenario.h"

#include <QComboBox>

namespace windowbench {

void reopenScenario(Program &p);

void benchCalculationWindows(WindowBench &b)
{
    Program &p = b.p;
    Session &s = p.session;
    const QString builder = QStringLiteral("frmZOB");
    reopenScenario(p);
    b.show(builder);

    const QString intake = QStringLiteral("frmSelect_Intake");
    const QVariant taxon = s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("TaxonID"),
                                    QStringLiteral("SpeciesID = %1").arg(s.gScenario->SpeciesID));
    for (int page = 0; page < 3; ++page) {
        RecordRequest r;
        r.recordId = page;
        r.selectedId = taxon.toInt();
        r.mode = QStringLiteral("Read");
        b.open(intake, &r, {}, QStringLiteral("frmSelect_Intake open for rate %1").arg(page));
        if (page == 2)
            if (auto *category = p.child<QComboBox>(intake, QStringLiteral("cboCategory")); category && category->count() > 1)
                b.refilter(intake, QStringLiteral("choose a species group"), [=] { category->setCurrentIndex(0); },
                           [=] { category->setCurrentIndex(category->count() - 1); });
        b.close(intake);
    }

    RecordRequest soil;
    soil.recordId = 4;
    soil.mode = QStringLiteral("Write");
    soil.table = QStringLiteral("tblSoilIngestion");
    soil.keyField = QStringLiteral("SoilIngestionID");
    const QString soilList = QStringLiteral("frmSelect_SoilIngestion");
    b.open(soilList, &soil);
    b.sort(soilList, QStringLiteral("ssGrdMain"), QStringLiteral("Species"), QStringLiteral("IntakeMean"));
    b.close(soilList);
    b.close(builder);

    // The equations list from the menu, to browse and edit.
    RecordRequest menu;
    menu.keyField = QStringLiteral("IntakeModelID");
    menu.table = QStringLiteral("tblIntakeModel");
    menu.mode = QStringLiteral("Write");
    menu.isSelection = false;
    const QString models = QStringLiteral("frmSelect_IntakeModel");
    b.open(models, &menu);
    b.sort(models, QStringLiteral("ssGrdMain"), QStringLiteral("Taxon"), QStringLiteral("a"));
    b.close(models);

    // The review as the builder's Calculations command opens it: asked for rows first, then shown;
    // its basis dialog is answered with OK.
    const QString review = QStringLiteral("frmZOBCalculations");
    b.action(QStringLiteral("frmZOBCalculations open"), [&] { b.close(review); },
             [&] {
                 const ModalAnswer ok(p, QStringLiteral("frmSelect_DryWetWeight"), QStringLiteral("cmdOK(0)"));
                 if (auto *link = p.host.link<CalculationReview>(review); link && link->ZOBCalculationsValid())
                     p.host.show(review);
             });
    b.close(review);
}

}  // namespace windowbench

// SPDX-License-Identifier: MIT
// The calculation windows on the builder's scenario: the intake dialog for each kind of rate the
// builder opens it for, the soil ingestion list, the equations list from the menu and the review.
#include "DialogSupport.h"
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

    b.list({QStringLiteral("frmSelect_SoilIngestion"), QStringLiteral("ssGrdMain"), QStringLiteral("Species"),
            QStringLiteral("IntakeMean")},
           recordOf(QStringLiteral("tblSoilIngestion"), QStringLiteral("SoilIngestionID"), 4, QStringLiteral("Write")));
    b.close(builder);

    // The equations list from the menu, to browse and edit.
    RecordRequest menu = recordOf(QStringLiteral("tblIntakeModel"), QStringLiteral("IntakeModelID"), 0, QStringLiteral("Write"));
    menu.isSelection = false;
    b.list({QStringLiteral("frmSelect_IntakeModel"), QStringLiteral("ssGrdMain"), QStringLiteral("Taxon"), QStringLiteral("a")}, menu);

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

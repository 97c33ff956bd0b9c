// SPDX-License-Identifier: MIT
#include "frmFind_Diet.h"

#include "DataControl.h"
#include "DialogSupport.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "clsScenario.h"

#include <QRadioButton>

namespace {
const WindowRegistration<frmFind_Diet> reg(QStringLiteral("frmFind_Diet"));
const char *const kFilters[] = {"No filter", "Kingdom", "Subkingdom", "Phylum", "Class", "Order", "Family"};
}  // namespace

frmFind_Diet::frmFind_Diet(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmFind_Diet"))
{
    setCaption(QStringLiteral("Select Existing Diet"));
    HelpContextID = 1007;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add New record", "New", [this] {
                          openForRecord(*this, QStringLiteral("frmDE_Species"),
                                        recordOf(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), speciesId(),
                                                 QStringLiteral("Write")),
                                        false, false);
                      }},
                     ToolButton::separator(),
                     {"Select", "Show the highlighted diet", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}},
                 QStringLiteral("frmFind_Diet.TB_MDI_ButtonClick"));
    m_dc = b.hiddenData(QStringLiteral("dcDiet"));
    m_grid = b.grid(QStringLiteral("ssGrdDiet"), m_dc,
                    {{"DataType", "Data Type"}, {"Habitat"}, {"Location"}, {"Province"}, {"Analysis"}, {"Sex"}}, true);
    m_grid->setToolTip(QStringLiteral("Double-click a diet to read it."));
    FormBuilder filter = b.frame(QStringLiteral("fraFilter"), QStringLiteral("Filter"), true);
    for (int i = 0; i < 7; ++i) {
        QRadioButton *opt = filter.option(QStringLiteral("optFilter"), i, QString::fromLatin1(kFilters[i]));
        // Diets carry no classification of their own: the list is always the species' whole list.
        opt->setEnabled(i == 0);
        opt->setChecked(i == 0);
        if (i > 0)
            opt->setToolTip(QStringLiteral("Diets are listed by species only."));
    }
    filter.stretch();
    connect(m_grid, &DataGrid::DblClick, this, [this] { runCommand(QStringLiteral("ssGrdDiet_DblClick"), [this] { select(); }); });
    resize(900, 420);
}

QString frmFind_Diet::listStatement(qint32 speciesId)
{
    return QStringLiteral(
               "SELECT tblDiet.DietID, tblDataType.Description AS DataType, tblHabitatType.Description AS Habitat, "
               "tblDiet.Location, tblStateProvince.Description AS Province, tblMaterialAnalyzed.Description AS Analysis, "
               "tblGender.Description AS Sex FROM ((((tblDiet LEFT JOIN tblDataType ON tblDiet.DataTypeID = "
               "tblDataType.DataTypeID) LEFT JOIN tblHabitatType ON tblDiet.HabitatTypeID = tblHabitatType.HabitatTypeID) "
               "LEFT JOIN tblStateProvince ON tblDiet.StateProvinceID = tblStateProvince.StateProvinceID) LEFT JOIN "
               "tblMaterialAnalyzed ON tblDiet.MaterialAnalyzedID = tblMaterialAnalyzed.MaterialAnalyzedID) LEFT JOIN "
               "tblGender ON tblDiet.GenderID = tblGender.GenderID WHERE tblDiet.SpeciesID = %1 ORDER BY tblDiet.DietID")
        .arg(speciesId);
}

qint32 frmFind_Diet::speciesId() const
{
    const qint32 requested = recordRequest().recordId;
    return requested > 0 ? requested : session().gScenario->SpeciesID;
}

void frmFind_Diet::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmFind_Diet.Form_Load")}, [this] {
        m_dc->setDatabase(session().gDB);
        m_dc->setRecordSource(listStatement(speciesId()));
        m_dc->Refresh();
        m_grid->fitColumns(24);
    });
}

void frmFind_Diet::select()
{
    if (m_dc->rowCount() == 0) {
        session().msgBox(QStringLiteral("No records to select."), QString(), MsgIcon::Warning);
        return;
    }
    const qint32 dietId = vb::CLng(m_dc->current().field(QStringLiteral("DietID")));
    openForRecord(*this, QStringLiteral("frmSelect_Diet"), recordOf(QString(), QString(), dietId, QStringLiteral("Read")), false);
}

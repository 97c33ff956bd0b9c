// SPDX-License-Identifier: MIT
#include "frmSelect_IntakeModel.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "GridLook.h"
#include "EntryWindows.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QHeaderView>

namespace {
const WindowRegistration<frmSelect_IntakeModel> reg(QStringLiteral("frmSelect_IntakeModel"));
const QString kEntry = QStringLiteral("frmDE_IntakeModel");
constexpr int kHelpTopic = 4102;
const QString kFirstSort = QStringLiteral("tblIntakeType.Description, tblCategory.Description, tblTaxon.Description");
}  // namespace

frmSelect_IntakeModel::frmSelect_IntakeModel(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmSelect_IntakeModel"))
{
    setCaption(QStringLiteral("Select Existing Allometric Equation"));
    HelpContextID = kHelpTopic;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add an allometric equation", "New", [this] { newModel(); }},
                     ToolButton::separator(),
                     {"Open", "Open the chosen equation", "Open", [this] { openModel(); }},
                     ToolButton::separator(),
                     {"Close", "Close the list", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help on allometric equations", "Help", [this] { showHelp(); }}});
    m_dcMain = b.hiddenData(QStringLiteral("dcMain"));
    m_ssGrdMain = b.grid(QStringLiteral("ssGrdMain"), m_dcMain,
                         {{QStringLiteral("IntakeModelID"), {}, {}, true},
                          {QStringLiteral("IntakeType"), QStringLiteral("Intake Type")},
                          {QStringLiteral("Category")},
                          {QStringLiteral("Taxon")},
                          {QStringLiteral("a")},
                          {QStringLiteral("b")},
                          {QStringLiteral("WtUnits"), QStringLiteral("Weight Units")},
                          {QStringLiteral("FinalUnits"), QStringLiteral("Final Units")},
                          {QStringLiteral("EqnUnits"), QStringLiteral("Equation Units")},
                          {QStringLiteral("MMF")},
                          {QStringLiteral("UCF")},
                          {QStringLiteral("Reference")}},
                         true);
    new GridLook(m_ssGrdMain);
    // The reference takes the width the other columns leave.
    m_ssGrdMain->horizontalHeader()->setStretchLastSection(true);
    m_ssGrdMain->setToolTip(QStringLiteral("Double-click an equation to open it; click a column head to sort."));
    connect(m_ssGrdMain, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssGrdMain_HeadClick"), [&] {
            static const QHash<QString, QString> names = {{QStringLiteral("Category"), QStringLiteral("tblCategory.Description")},
                                                          {QStringLiteral("Taxon"), QStringLiteral("tblTaxon.Description")},
                                                          {QStringLiteral("IntakeType"), QStringLiteral("tblIntakeType.Description")}};
            const QString field = m_dcMain->fields().value(column);
            LoadData(names.value(field, field));
        });
    });
    connect(m_ssGrdMain, &DataGrid::DblClick, this, [this] { toolbar()->click(QStringLiteral("Open")); });
    resize(sizeHint());
}

void frmSelect_IntakeModel::serveRequest()
{
    toolbar()->button(QStringLiteral("New"))->setEnabled(recordRequest().mode == QLatin1String("Write"));
    m_dcMain->setDatabase(session().gDB);
    guarded(session(), {ErrForm::Shared, QStringLiteral("LoadData")},
            [&] { LoadData(kFirstSort); });
}

void frmSelect_IntakeModel::LoadData(const QString &sort)
{
    m_dcMain->setRecordSource(
        QStringLiteral(
            "SELECT tblIntakeModel.IntakeModelID, tblTaxon.Description AS Taxon, tblCategory.Description AS Category, "
            "tblIntakeType.Description AS IntakeType, tblIntakeModel.a, tblIntakeModel.b, tblUnits.Description AS WtUnits, "
            "tblUnits_1.Description AS FinalUnits, tblUnits_2.Description AS EqnUnits, tblIntakeModel.MMF, tblIntakeModel.UCF, "
            "qryReference.Reference FROM qryReference RIGHT JOIN (tblUnits AS tblUnits_2 RIGHT JOIN (tblUnits AS tblUnits_1 RIGHT "
            "JOIN (tblUnits RIGHT JOIN (((tblIntakeModel LEFT JOIN tblIntakeType ON tblIntakeModel.IntakeTypeID = "
            "tblIntakeType.IntakeTypeID) LEFT JOIN tblCategory ON tblIntakeModel.CategoryID = tblCategory.CategoryID) LEFT JOIN "
            "tblTaxon ON tblIntakeModel.TaxonID = tblTaxon.TaxonID) ON tblUnits.UnitsID = tblIntakeModel.WtUnitsID) ON "
            "tblUnits_1.UnitsID = tblIntakeModel.FinalUnitsID) ON tblUnits_2.UnitsID = tblIntakeModel.EqnUnitsID) ON "
            "qryReference.ReferenceID = tblIntakeModel.ReferenceID ORDER BY ")
        + sort);
    m_dcMain->Refresh();
    m_ssGrdMain->fitColumns(28, 5);
    m_ssGrdMain->setColumnWidth(m_dcMain->fieldIndex(QStringLiteral("Reference")), 160);
}

void frmSelect_IntakeModel::openModel()
{
    RecordRequest entry;
    entry.recordId = vb::CLng(m_dcMain->current().field(QStringLiteral("IntakeModelID")));
    entry.table = QStringLiteral("tblIntakeModel");
    entry.keyField = QStringLiteral("IntakeModelID");
    entry.mode = recordRequest().mode;
    if (openEntryWindow(session(), host(), kEntry, entry, true) && !unloading())
        LoadData(kFirstSort);
}

void frmSelect_IntakeModel::newModel()
{
    if (openNewEntry(session(), host(), kEntry, QStringLiteral("tblIntakeModel"), QStringLiteral("IntakeModelID")) && !unloading())
        LoadData(kFirstSort);
}

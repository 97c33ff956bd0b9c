// SPDX-License-Identifier: MIT
#include "frmReferenceSpecies.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Functions.h"
#include "PickerSupport.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbError.h"
#include "VbFormat.h"
#include "ZobToolbar.h"
#include "frmSelect_Reference.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmReferenceSpecies> reg(QStringLiteral("frmReferenceSpecies"));
}  // namespace

frmReferenceSpecies::frmReferenceSpecies(Session &session, QtWindowHost &host)
    : RequestWindow(session, host, QStringLiteral("frmReferenceSpecies"))
{
    setCaption(QStringLiteral("Reference"));
    HelpContextID = 2575;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Add a reference", "New", [this] {
                          openReferenceEntry(this->session(), this->host(), 0);
                          loadLists();
                      }},
                     ToolButton::separator(),
                     {"Select", "Assign the highlighted reference", "Select", [this] { assign(); }},
                     ToolButton::separator(),
                     {"Close", "Close", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}});
    m_lblHeader = b.frame(QStringLiteral("fraMain"), QString()).panel(QStringLiteral("lblSpecies"), QString(), 3);
    FormBuilder search = b.row();
    m_txtInput = search.textBox(QStringLiteral("txtInput"), QStringLiteral("Author:"));
    FormBuilder::userTyped(m_txtInput);
    QPushButton *viewAll = search.button(QStringLiteral("cmdSearch"), QStringLiteral("&View All"));
    FormBuilder lists = b.row(1);
    FormBuilder available = lists.column(4).frame(QStringLiteral("fraAvailable"), QStringLiteral("Not Assigned/Available"));
    for (int i = 0; i < 2; ++i)
        m_dc[i] = b.hiddenData(arrayName(QStringLiteral("dcReferences"), i));
    m_grid[0] = available.grid(arrayName(QStringLiteral("grdReferences"), 0), m_dc[0], {{"ReferenceID"}, {"Reference"}}, true);
    FormBuilder buttons = lists.column(0);
    QPushButton *assignButton = buttons.button(QStringLiteral("cmdAssign"), QStringLiteral("Select"));
    QPushButton *removeButton = buttons.button(QStringLiteral("cmdRemove"), QStringLiteral("Unselect"));
    QPushButton *closeButton = buttons.button(QStringLiteral("cmdClose"), QStringLiteral("&Close"));
    buttons.stretch();
    FormBuilder assigned = lists.column(5).frame(QStringLiteral("fraAssigned"), QStringLiteral("Assigned"));
    auto tick = [](const char *field, const char *caption) {
        GridColumn c{QString::fromLatin1(field), QString::fromLatin1(caption)};
        c.check = true;
        return c;
    };
    m_grid[1] = assigned.grid(arrayName(QStringLiteral("grdReferences"), 1), m_dc[1],
                              {{"ReferenceID"}, {"Reference"}, tick("IsDistribution", "Distribution"), tick("IsHabitat", "Habitat"),
                               tick("IsDiet", "Diet"), tick("IsRelated", "Related")}, true);
    auto command = [this](const char *name, std::function<void()> body) {
        return [this, name, body] { runCommand(QString::fromLatin1(name), body); };
    };
    connect(viewAll, &QPushButton::clicked, this, command("cmdSearch_Click", [this] { ControlValue::clear(m_txtInput); loadLists(); }));
    connect(m_txtInput, &QLineEdit::textEdited, this, command(" frmReferenceSpecies.txtInput", [this] { loadLists(); }));
    connect(assignButton, &QPushButton::clicked, this, command("cmdAssign_Click", [this] { assign(); }));
    connect(removeButton, &QPushButton::clicked, this, command("cmdRemove_Click", [this] { unassign(); }));
    connect(closeButton, &QPushButton::clicked, this, [this] { unloadMe(); });
    connect(m_grid[0], &DataGrid::DblClick, this, command("grdReferences_DblClick", [this] { assign(); }));
    connect(m_grid[1], &DataGrid::DblClick, this, command("grdReferences_DblClick", [this] { unassign(); }));
    connect(m_dc[1], &DataControl::Error, this, [command](int number, const QString &description) {
        command("grdReferences_Change", [number, description] { throw VbError(number, description); })();
    });
    resize(1180, 560);
}

AssignmentNames frmReferenceSpecies::names()
{
    return {QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), QStringLiteral("Common"),
            QStringLiteral("jtblSpeciesReference"), QStringLiteral("SpeciesID"),
            QStringLiteral("qryReference"), QStringLiteral("ReferenceID"), QStringLiteral("Reference")};
}

QString frmReferenceSpecies::availableStatement(const AssignmentNames &n, qint32 id)
{
    return QStringLiteral("SELECT %1, %2 FROM %3 WHERE %3.%1 NOT IN (SELECT %4.%1 FROM %4 LEFT JOIN %5 ON %4.%6 = %5.%7 "
                          "WHERE %5.%7 = %8) Order By %2")
        .arg(n.otherKey, n.otherShown, n.otherTable, n.joinTable, n.mainTable, n.joinKey, n.mainKey)
        .arg(id);
}

QString frmReferenceSpecies::assignedStatement(qint32 speciesId)
{
    return QStringLiteral("SELECT jtblSpeciesReference.ReferenceID, qryReference.Reference, jtblSpeciesReference.IsDistribution, "
                          "jtblSpeciesReference.IsHabitat, jtblSpeciesReference.IsDiet, jtblSpeciesReference.IsRelated FROM "
                          "qryReference INNER JOIN jtblSpeciesReference ON qryReference.ReferenceID = "
                          "jtblSpeciesReference.ReferenceID Where jtblSpeciesReference.SpeciesID = %1 ORDER BY qryReference.Reference;")
        .arg(speciesId);
}

void frmReferenceSpecies::serveRequest()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmReferenceSpecies.Form_Load")}, [this] {
        fillHeader();
        loadLists();
    });
}

void frmReferenceSpecies::fillHeader()
{
    bool found = false;
    const QString header = speciesHeaderText(session(), recordRequest().recordId, &found);
    // A species that is gone has no lists: nothing can be linked to it.
    if (!found) {
        m_lblHeader->clear();
        throw VbError::noCurrentRecord();
    }
    m_lblHeader->setText(header);
}

void frmReferenceSpecies::loadLists()
{
    const qint32 species = recordRequest().recordId;
    const QString text = ControlValue::text(m_txtInput);
    const QString sources[2] = {text.isEmpty() ? availableStatement(names(), species) : frmSelect_Reference::authorStatement(text),
                                assignedStatement(species)};
    // A tick in the assigned list is written to the species' own link row.
    m_dc[1]->setWriteTable(QStringLiteral("jtblSpeciesReference"), {QStringLiteral("ReferenceID")},
                           QStringLiteral("SpeciesID = %1").arg(species));
    for (int i = 0; i < 2; ++i) {
        m_dc[i]->setDatabase(session().gDB);
        m_dc[i]->setRecordSource(sources[i]);
        m_dc[i]->Refresh();
        // The assigned list keeps its references short so that the four marks stay in view.
        m_grid[i]->fitColumns(i == 0 ? 60 : 22);
    }
}

void frmReferenceSpecies::assign()
{
    const qint32 reference = vb::CLng(m_dc[0]->current().field(QStringLiteral("ReferenceID")));
    session().gDB->Execute(QStringLiteral("INSERT INTO jtblSpeciesReference (SpeciesID,ReferenceID) VALUES (%1,%2)")
                               .arg(recordRequest().recordId).arg(reference));
    loadLists();
}

void frmReferenceSpecies::unassign()
{
    const qint32 reference = vb::CLng(m_dc[1]->current().field(QStringLiteral("ReferenceID")));
    session().gDB->Execute(QStringLiteral("DELETE FROM jtblSpeciesReference WHERE SpeciesID = %1 AND ReferenceID = %2")
                               .arg(recordRequest().recordId).arg(reference));
    loadLists();
}

// SPDX-License-Identifier: MIT
#include "BuilderSpeciesPage.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "clsScenario.h"
#include "frmZOB.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

BuilderSpeciesPage::BuilderSpeciesPage(frmZOB &window, FormBuilder &page, FormBuilder &header)
    : QObject(&window), m_w(window)
{
    for (int i = 0; i < 3; ++i)
        m_info[i] = header.label(QStringLiteral("LblSpeciesInfo"), 6 + i, QString());
    FormBuilder fields = page.fields(1, QStringLiteral("fraSpecies"));
    m_txtLatinName = fields.textBox(QStringLiteral("txtLatinName"), QStringLiteral("Scientific Name:"));
    m_txtCommonName = fields.textBox(QStringLiteral("txtCommonName"), QStringLiteral("Common Name:"));
    m_cboTaxon = fields.combo(QStringLiteral("cboTaxon"), QStringLiteral("Taxon:"));
    m_cboTaxon->setEditable(true);
    page.label(QStringLiteral("LbLDataSource"), 0, QString());
    m_w.noteBox(page, 0, QStringLiteral("Species Comments:"), 6);
    m_w.pageCommands(page, 0, [this] { selectFromDatabase(); }, [this] { enterHypothetical(); });
    connect(m_txtCommonName, &QLineEdit::textChanged, this, &BuilderSpeciesPage::namesChanged);
    connect(m_txtLatinName, &QLineEdit::textChanged, this, &BuilderSpeciesPage::namesChanged);
    connect(m_cboTaxon, &QComboBox::currentTextChanged, this, &BuilderSpeciesPage::namesChanged);
    namesChanged();
}

void BuilderSpeciesPage::loadTaxa()
{
    auto *dcTaxon = m_w.findChild<DataControl *>(QStringLiteral("dcTaxon"));
    dcTaxon->setDatabase(m_w.session().gDB);
    dcTaxon->setRecordSource(QStringLiteral("Select * From tblTaxon"));
    dcTaxon->Refresh();
    const QString kept = m_cboTaxon->currentText();
    m_cboTaxon->clear();
    for (int row = 0; row < dcTaxon->rowCount(); ++row)
        m_cboTaxon->addItem(dcTaxon->value(row, QStringLiteral("Description")).toString(),
                            dcTaxon->value(row, QStringLiteral("TaxonID")));
    ControlValue::setText(m_cboTaxon, kept);
}

void BuilderSpeciesPage::showNames(const QString &common, const QString &latin, const QString &taxon)
{
    ControlValue::setText(m_txtCommonName, common);
    ControlValue::setText(m_txtLatinName, latin);
    ControlValue::setText(m_cboTaxon, taxon);
    namesChanged();
}

void BuilderSpeciesPage::namesChanged()
{
    Session &s = m_w.session();
    s.gSpeciesCommon = ControlValue::text(m_txtCommonName);
    s.gSpeciesLatin = ControlValue::text(m_txtLatinName);
    s.gSpeciesTaxon = ControlValue::text(m_cboTaxon);
    m_info[0]->setText(QStringLiteral("Scientific Name: ") + s.gSpeciesLatin);
    m_info[1]->setText(QStringLiteral("Common Name: ") + s.gSpeciesCommon);
    m_info[2]->setText(QStringLiteral("Taxon: ") + s.gSpeciesTaxon);
}

void BuilderSpeciesPage::load(qint32 id, qint32 dataSourceId, qint32 previousId)
{
    Session &s = m_w.session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("PrS_LoadSpeciesControls")}, [&] {
        // Another species replacing a chosen one costs the scenario what was built on the old one.
        if (id != 0 && previousId != 0 && previousId != id) {
            sc.SpeciesHasChanged = true;
            m_w.ClearCurrentScenario();
            sc.HasChanged = false;
            sc.SpeciesHasChanged = false;
            sc.Save(QStringLiteral("Species"));
        } else {
            sc.SpeciesHasChanged = false;
        }
        if (dataSourceId != 2)
            s.gSQL = QStringLiteral("SELECT tblSpecies.*, tblTaxon.Description AS Taxon FROM tblSpecies INNER JOIN tblTaxon "
                                    "ON tblSpecies.TaxonID = tblTaxon.TaxonID Where SpeciesID = %1").arg(id);
        else
            s.gSQL = QStringLiteral("SELECT * FROM tblWildlife WHERE ScenarioID = %1").arg(id);
        auto rs = s.gDB->OpenRecordset(s.gSQL, RecordsetType::Snapshot);
        m_w.SetDataSource(dataSourceId, 0);
        if (!(rs->BOF() && rs->EOF_())) {
            showNames(rs->field(QStringLiteral("Common")).toString(), rs->field(QStringLiteral("Latin")).toString(),
                      rs->field(QStringLiteral("Taxon")).toString());
            sc.Identifier1 = s.gSpeciesCommon;
            sc.SpeciesID = id;
            sc.Species_DataSource = dataSourceId;
        }
        rs->Close();
        // On a new scenario this save asks for the scenario's file name.
        sc.Save(QStringLiteral("Species"));
        for (int i : {0, 1})
            arrayItem<QWidget>(&m_w, QStringLiteral("cmdSelect"), i)->setEnabled(true);
    });
}

void BuilderSpeciesPage::leave()
{
    clsScenario &sc = *m_w.session().gScenario;
    if (sc.SpeciesHasChanged.toBool()) {
        m_w.ClearCurrentScenario();
        sc.SpeciesHasChanged = false;
    }
    if ((sc.Species_DataSource == 2 && sc.SpeciesID == 0) || sc.SpeciesID > 0)
        sc.Save(QStringLiteral("Species"));
}

bool BuilderSpeciesPage::namesBlank() const
{
    return ControlValue::text(m_txtCommonName).trimmed().isEmpty() || ControlValue::text(m_txtLatinName).trimmed().isEmpty();
}

void BuilderSpeciesPage::focusCommonName()
{
    m_txtCommonName->setFocus();
}

void BuilderSpeciesPage::selectFromDatabase()
{
    RecordRequest request;
    request.recordId = m_w.session().gScenario->SID;
    request.keyField = QStringLiteral("ScenarioID");
    request.table = QStringLiteral("tblWildlife");
    request.mode = QStringLiteral("ReadOnly");
    request.entry = QStringLiteral("ZOB");
    m_w.openWindow(QStringLiteral("frmSelect_Species"), request, true);
}

void BuilderSpeciesPage::clearSpeciesControls()
{
    const QList<QWidget *> boxes = {m_txtCommonName, m_txtLatinName, m_cboTaxon, m_w.notes(0)};
    for (QWidget *box : boxes)
        ControlValue::clear(box);
    m_w.session().gScenario->SpeciesID = 0;
}

void BuilderSpeciesPage::enterHypothetical()
{
    clsScenario &sc = *m_w.session().gScenario;
    arrayItem<QWidget>(&m_w, QStringLiteral("cmdMoreInfo"), 0)->setVisible(false);
    clearSpeciesControls();
    m_w.SetDataSource(2, m_w.currentPage());
    sc.Species_DataSource = 2;
    sc.HasChanged = true;
    // The next save asks for a new file name.
    sc.FileName.clear();
    sc.SpeciesHasChanged = false;
    focusCommonName();
}

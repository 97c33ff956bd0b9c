// SPDX-License-Identifier: MIT
#include "frmZOB.h"

#include "BuilderCommands.h"
#include "BuilderDataSource.h"
#include "BuilderDietPage.h"
#include "BuilderIntakePage.h"
#include "BuilderMoreInfo.h"
#include "BuilderScenarioRows.h"
#include "BuilderSpeciesPage.h"
#include "BuilderWeightPage.h"
#include "Calculations.h"
#include "ControlEvents.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "WindowAvailable.h"
#include "clsDietItem.h"
#include "clsProject.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QTabWidget>

namespace {
const WindowRegistration<frmZOB> reg(QStringLiteral("frmZOB"));
const QString kReview = QStringLiteral("frmZOBCalculations");
//! The help topic set on leaving each page.
const int kPageTopics[4] = {1002, 1004, 1006, 1015};
}  // namespace

frmZOB::frmZOB(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmZOB"))
{
    setCaption(QStringLiteral("Zobrel - Documentation"));
    HelpContextID = 1002;
    FormBuilder b(this);
    buildBuilderCommands(*this, b);
    FormBuilder header = b.row(0, QStringLiteral("fraHeader"));
    FormBuilder status = header.frame(QStringLiteral("fraStatus"), QStringLiteral("Wildlife Scenario"));
    FormBuilder description = header.column(2, QStringLiteral("fraDescriptionColumn"))
                                  .frame(QStringLiteral("fraScenarioDescription"), QStringLiteral("Scenario Description"));
    QPlainTextEdit *scenarioText = noteBox(description, 8, QString(), 3);
    scenarioText->setToolTip(QStringLiteral("Double click to enlarge for data entry"));
    scenarioText->setMaximumHeight(scenarioText->minimumHeight());
    m_ssTabSB = b.tabs(QStringLiteral("ssTabSB"));
    FormBuilder species = b.page(m_ssTabSB, QStringLiteral("Species"));
    m_species = new BuilderSpeciesPage(*this, species, status);
    FormBuilder weight = b.page(m_ssTabSB, QStringLiteral("Weight"));
    m_weight = new BuilderWeightPage(*this, weight);
    FormBuilder diet = b.page(m_ssTabSB, QStringLiteral("Diet"));
    m_diet = new BuilderDietPage(*this, diet);
    FormBuilder intake = b.page(m_ssTabSB, QStringLiteral("Intake"));
    m_intake = new BuilderIntakePage(*this, intake);
    m_dcScenario = b.hiddenData(QStringLiteral("dcScenario"));
    b.hiddenData(QStringLiteral("dcTaxon"));
    connect(m_ssTabSB, &QTabWidget::currentChanged, this, [this](int arrived) {
        if (m_turning)
            return;
        // The page that was left decides what is saved, and its help topic becomes the window's.
        const int left = m_shownPage;
        m_shownPage = arrived;
        runCommand(QStringLiteral("ssTabSB_Click"), [this, left] { pageLeft(left); });
    });
    resize(900, 680);
}

frmZOB::~frmZOB()
{
    if (session().gScenario && session().gScenario->notes == this)
        session().gScenario->notes = nullptr;
}

QPlainTextEdit *frmZOB::noteBox(FormBuilder &b, int index, const QString &caption, int lines, const QString &labelName)
{
    auto *box = new QPlainTextEdit;
    box->setMinimumHeight(box->fontMetrics().lineSpacing() * lines + 10);
    const QString name = arrayName(QStringLiteral("txtNotes"), index);
    if (caption.isEmpty())
        b.add(box, name);
    else
        b.above(box, name, labelName.isEmpty() ? arrayName(QStringLiteral("lblNotes"), index) : labelName, caption, 1);
    // What the user types is blue; the diet record's notes come from the reference diet.
    if (index != 9)
        FormBuilder::userTyped(box);
    m_notes[index] = box;
    connect(ControlEvents::of(box), &ControlEvents::DblClick, this, [this, index] { zoomNote(index); });
    return box;
}

void frmZOB::pageCommands(FormBuilder &page, int p, const std::function<void()> &fromDatabase,
                          const std::function<void()> &hypothetical)
{
    FormBuilder commands = page.row(0, arrayName(QStringLiteral("fraCommands"), p));
    // The intake page's selection opens a dialog of its own kind, hence its "...".
    commandButtons(commands, QStringLiteral("cmdSelect"), {
        {2 * p, p == 3 ? QStringLiteral("Select from Database...") : QStringLiteral("Select from Database"), fromDatabase},
        {2 * p + 1, QStringLiteral("Enter Hypothetical Data"), hypothetical}});
    commands.stretch();
    commandButtons(commands, QStringLiteral("cmdMoreInfo"), {{p, QStringLiteral("More Information..."), [this] { cmdMoreInfo_Click(); }}});
}

void frmZOB::zoomNote(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("txtNotes_DblClick")}, [&] {
        if (auto *z = host().link<TextZoom>(QStringLiteral("frmZoom")))
            z->ZoomText(m_notes[index], QStringLiteral("Modify Text"), false);
    });
}

// --- lifecycle ---

void frmZOB::Form_Load()
{
    Session &s = session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("frmZOB.Form_Load")}, [&] {
        s.gDietItem = std::make_shared<clsDietItem>(s);
        sc.notes = this;
        s.gSQL = QStringLiteral("SELECT tblWildlife.*, tblIntakeZOB.* FROM tblWildlife INNER JOIN tblIntakeZOB ON "
                                "tblWildlife.ScenarioID = tblIntakeZOB.ScenarioID WHERE tblIntakeZOB.ScenarioID = %1").arg(sc.SID);
        m_dcScenario->setDatabase(s.gDB);
        m_dcScenario->setRecordSource(s.gSQL);
        m_dcScenario->Refresh();
        m_species->loadTaxa();
        HelpContextID = 1002;
        sc.ScenarioType = QStringLiteral("Wildlife");
        sc.SpeciesHasChanged = false;
        sc.HasChanged = false;
        m_intake->showUnits();
        if (sc.Mode == QLatin1String("Edit"))
            loadEditedScenario();
        rememberSpecies();
        for (const char *name : {"txtIntakeRate(4)", "txtIntakeMeasureCF(3)"})
            FormBuilder::userTyped(control(QString::fromLatin1(name)));
    });
}

void frmZOB::loadEditedScenario()
{
    Session &s = session();
    clsScenario &sc = *s.gScenario;
    Recordset &row = m_dcScenario->current();
    auto field = [&row](const char *name) { return row.field(QString::fromLatin1(name)); };
    m_species->showNames(field("Common").toString(), field("Latin").toString(), field("Taxon").toString());
    readScenarioRow(sc, row);
    m_diet->setHead({sc.Diet_Season, sc.Diet_Sex, sc.Diet_Habitat, GetAvgTrophicLevel(s, sc.SID, QStringLiteral("tblWildlifeDietItems")),
                     ControlValue::text(m_notes[9])});
    ControlValue::setText(m_notes[0], field("SpeciesComments").toString());
    ControlValue::setText(m_notes[1], field("WtComments").toString());
    ControlValue::setText(m_notes[2], field("DietComments").toString());
    const QVariant description = s.Lookup(QStringLiteral("tblScenario"), QStringLiteral("Comments"), QStringLiteral("ScenarioID = %1").arg(sc.SID));
    ControlValue::setText(m_notes[8], description.toString() == kNotFound ? QString() : description.toString());
    readIntakeSources(sc, *m_dcScenario->recordset());
}

void frmZOB::Form_Activate()
{
    Session &s = session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("frmZOB_FormActivate")}, [&] {
        sc.notes = this;
        if (sc.Mode != QLatin1String("Add")) {
            loadSpecies(sc.SpeciesID, sc.Species_DataSource, sc.SpeciesID);
            m_weight->load();
            m_diet->load();
            m_intake->load();
        } else {
            // Until the first save, the comment block replaces whatever the notes hold.
            const QString block = sc.userCommentBlock();
            for (int i = 0; i <= 7; ++i)
                ControlValue::setText(m_notes[i], block);
        }
        s.resetCursor();
    });
}

void frmZOB::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    Session &s = session();
    clsScenario &sc = *s.gScenario;
    guarded(s, {ErrForm::Shared, QStringLiteral("Form_QueryUnload")}, [&] {
        if (sc.Mode == QLatin1String("Edit")) {
            m_intake->SaveIntakeControls();
            sc.Save(QStringLiteral("All"));
        }
    });
    sc.notes = nullptr;
    sc.Clear();
    guarded(s, {ErrForm::Shared, QStringLiteral("Form_QueryUnload")}, [&] {
        if (s.gProject)
            s.gProject->OpenFile();
    });
}

// --- what the dialogs call ---

void frmZOB::rememberSpecies()
{
    m_speciesSid = session().gScenario->SID;
    m_speciesOnPage = session().gScenario->SpeciesID;
}

void frmZOB::loadSpecies(qint32 id, qint32 dataSourceId, qint32 previousId)
{
    m_species->load(id, dataSourceId, previousId);
    rememberSpecies();
}

void frmZOB::PrS_LoadSpeciesControls()
{
    const clsScenario &sc = *session().gScenario;
    loadSpecies(sc.SpeciesID, sc.Species_DataSource, m_speciesSid == sc.SID ? m_speciesOnPage : 0);
}

void frmZOB::PrS_LoadWeightControls() { m_weight->load(); }
void frmZOB::PuS_LoadDietControls() { m_diet->load(); }
void frmZOB::UpdateDietItems() { m_diet->updateItems(); }
void frmZOB::setDietHead(const DietHeadText &head) { m_diet->setHead(head); }
void frmZOB::PrS_LoadIntakeControls() { m_intake->load(); }

void frmZOB::PuS_SetTab(int index) { m_ssTabSB->setCurrentIndex(index); }

void frmZOB::showFirstPages()
{
    m_intake->setSubPage(0);
    m_ssTabSB->setCurrentIndex(0);
}

int frmZOB::currentPage() const { return m_ssTabSB->currentIndex(); }

QString frmZOB::note(int index) const
{
    if (index < 0 || index >= 10)
        return QString();
    // The notes are stored with the line ends they were written with (CR LF).
    QString text = ControlValue::text(m_notes[index]);
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}
QString frmZOB::dietSeason() const { return m_diet->season(); }
QString frmZOB::dietHabitat() const { return m_diet->habitat(); }
QString frmZOB::dietSex() const { return m_diet->sex(); }

bool frmZOB::openWindow(const QString &name, const RecordRequest &request, bool modal)
{
    if (!windowAvailable(session(), name)) {
        session().resetCursor();
        return false;
    }
    if (ZobWindow *w = host().form(name))
        w->setRecord(request);
    host().show(name, modal);
    return true;
}

void frmZOB::cmdMoreInfo_Click()
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmZOBcmdMoreInfo_Click")},
            [&] { showMoreInformation(*this, currentPage(), m_intake->currentSubPage()); });
}

// --- pages and commands ---

void frmZOB::pageLeft(int page)
{
    Session &s = session();
    clsScenario &sc = *s.gScenario;
    if (page < 0 || page > 3)
        return;
    HelpContextID = kPageTopics[page];
    switch (page) {
    case 0:
        m_species->leave();
        break;
    case 1:
        // A blank species is caught here, on leaving the weight page.
        if (m_species->namesBlank()) {
            s.msgBox(QStringLiteral("Species Common and Scientific Name cannot be blank! Cannot save ..."), QString(), MsgIcon::Warning);
            m_turning = true;
            m_ssTabSB->setCurrentIndex(0);
            m_turning = false;
            m_shownPage = 0;
            m_species->focusCommonName();
            return;
        }
        m_weight->saveTypedWeight();
        break;
    case 2:
        sc.SaveWildlifeGroup(QStringLiteral("Diet"));
        break;
    case 3:
        if (!m_weight->weightText().isEmpty())
            sc.Weight = vb::CSng(m_weight->weightText());
        break;
    }
}

void frmZOB::calculations()
{
    clsScenario &sc = *session().gScenario;
    if (sc.SpeciesHasChanged.toBool() && sc.WeightID > 0) {
        // The press that follows a change of species clears and saves; the next one reviews.
        ClearCurrentScenario();
        sc.HasChanged = false;
        sc.SpeciesHasChanged = false;
        sc.Save(QStringLiteral("Species"));
        return;
    }
    sc.Save(QStringLiteral("Species"));
    if (sc.ScenarioType != QLatin1String("Wildlife") || !WildlifeDietItemsExist())
        return;
    if (!QtWindowHost::isRegistered(kReview)) {
        session().msgBox(QStringLiteral("The calculation review is not available in this version of the program."), QString(),
                         MsgIcon::Information);
        return;
    }
    auto *review = host().link<CalculationReview>(kReview);
    if (review && review->ZOBCalculationsValid())
        host().show(kReview, true);
}

bool frmZOB::WildlifeDietItemsExist() { return anyDietItems(session()); }

bool frmZOB::ClearCurrentScenario()
{
    Session &s = session();
    bool cleared = false;
    guarded(s, {ErrForm::Qualified, QStringLiteral("frmZOB.ClearCurrentScenario")}, [&] {
        if (s.msgBox(QStringLiteral("Do you want to overwrite the existing file? "), QString(), MsgIcon::Question, MsgButtons::YesNo)
            != MsgAnswer::Yes)
            return;
        resetScenarioRows(s);
        m_diet->refreshItems();
        m_weight->clear();
        m_diet->clear();
        m_intake->clear();
        // The scenario loses its file; the next save names a new one.
        forgetScenarioChoices(s);
        for (int i = 1; i <= 7; ++i)
            ControlValue::clear(m_notes[i]);
        cleared = true;
    });
    return cleared;
}

void frmZOB::SetDataSource(qint32 id, int target)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("SetDataSource")}, [&] { applyDataSource(*this, id, target); });
}

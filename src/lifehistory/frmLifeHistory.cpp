// SPDX-License-Identifier: MIT
#include "frmLifeHistory.h"

#include "BrowserPages.h"
#include "DataControl.h"
#include "DietHabitsPage.h"
#include "FormBuilder.h"
#include "LifeTextPage.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Wildlife.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {
const WindowRegistration<frmLifeHistory> reg(QStringLiteral("frmLifeHistory"));
}  // namespace

frmLifeHistory::frmLifeHistory(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmLifeHistory"))
{
    setCaption(QStringLiteral("Life History Details"));
    HelpContextID = 3701;
    FormBuilder b(this);
    m_txtDisplay = b.panel(QStringLiteral("txtDisplay"), QString(), 2);
    m_txtDisplay->setWordWrap(true);
    m_dcSpecies = b.dataControl(QStringLiteral("dcSpecies"));
    m_outer = b.tabs(QStringLiteral("ssTabLifeHistory"));
    Session &s = this->session();
    auto text = [&s](const QString &dc, const QString &boxes, const QString &options) {
        return [&s, dc, boxes, options](FormBuilder &p) -> LifePage * { return new LifeTextPage(s, p, dc, boxes, options); };
    };
    FormBuilder general = b.page(m_outer, QStringLiteral("General"));
    m_inner << nullptr;
    m_pages << QList<LifePage *>{reloadOnOption(text("dcMainGeneral", "txtGeneralOrder", "optGeneral")(general))};
    FormBuilder diet = b.page(m_outer, QStringLiteral("Diet and Intake Rate"));
    innerTabs(diet, QStringLiteral("ssTabDietIntake"),
              {{"Food Habits(General) / Metabolism(General)", text("dcDietIntakeRate", "txtDIFoodHabitsGeneral", "optDietIntakeRate")},
               {"Food Habits (Specific Diets)", [&s](FormBuilder &p) -> LifePage * { return new DietHabitsPage(s, p); }},
               {"Intake and Metabolic Rates", [&s](FormBuilder &p) { return BrowserPages::intakeRates(s, p); }}});
    FormBuilder population = b.page(m_outer, QStringLiteral("Population and Habitat"));
    innerTabs(population, QStringLiteral("ssTabPopulationHabitat"),
              {{"General Information", text("dcPopulationHabitat", "txtPopulationHabitat", "optPopulationHabitat")},
               {"Specific Information", [&s](FormBuilder &p) { return BrowserPages::populationSpecifics(s, p); }}});
    FormBuilder seasonal = b.page(m_outer, QStringLiteral("Seasonal Activities"));
    innerTabs(seasonal, QStringLiteral("ssTabSeasonalActivities"),
              {{"General Information", text("dcSeasonalActivity", "txtSeasonActivityGeneral", "optSeasonActivityGeneral")},
               {"Specific Information", [&s](FormBuilder &p) { return BrowserPages::seasonalSpecifics(s, p); }}});
    FormBuilder body = b.page(m_outer, QStringLiteral("Body Size and Growth Rate"));
    innerTabs(body, QStringLiteral("ssTabBodySizeAndGrowth"),
              {{"Body Size(General)", text("dcBodySizeGeneral", "txtBodySize", "optBodySize")},
               {"Body Size (Specific Weights)", [&s](FormBuilder &p) { return BrowserPages::specificWeights(s, p); }},
               {"Growth Rate, Surface Area, Body Fat", [&s](FormBuilder &p) { return BrowserPages::growthRate(s, p); }}});
    FormBuilder buttons = b.row();
    buttons.stretch();
    connect(buttons.button(QStringLiteral("cmdHelp"), QStringLiteral("&Help")), &QPushButton::clicked, this, [this] { showHelp(); });
    resize(900, 680);

    connect(m_dcSpecies, &DataControl::Reposition, this, [this] {
        if (m_found && m_found->currentRow() != m_dcSpecies->currentRow())
            m_found->moveTo(m_dcSpecies->currentRow());
        loadPage();
    });
    connect(m_outer, &QTabWidget::currentChanged, this, [this] { loadPage(); });
}

void frmLifeHistory::innerTabs(FormBuilder &page, const QString &name,
                               const QList<QPair<QString, std::function<LifePage *(FormBuilder &)>>> &pages)
{
    QTabWidget *strip = page.tabs(name);
    QList<LifePage *> made;
    for (const auto &[caption, make] : pages) {
        FormBuilder inner = page.page(strip, caption);
        made << reloadOnOption(make(inner));
    }
    m_inner << strip;
    m_pages << made;
    connect(strip, &QTabWidget::currentChanged, this, [this] { loadPage(); });
}

LifePage *frmLifeHistory::reloadOnOption(LifePage *page)
{
    connect(page, &LifePage::optionChanged, this, [this, page] { page->load(speciesId()); });
    return page;
}

void frmLifeHistory::Form_Load()
{
    m_dcSpecies->setDatabase(session().gDB);
}

bool frmLifeHistory::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 27)
        return false;
    unloadMe();
    return true;
}

qint32 frmLifeHistory::speciesId() const
{
    const int row = m_dcSpecies->currentRow();
    return row >= 0 ? m_dcSpecies->value(row, QStringLiteral("SpeciesID")).toInt() : 0;
}

void frmLifeHistory::PuS_SetTab(int index)
{
    m_outer->setCurrentIndex(index);
}

void frmLifeHistory::showSpecies(DataControl *found)
{
    m_found = found;
    m_dcSpecies->setDatabase(found->database());
    m_dcSpecies->setRecordSource(found->recordSource());
    m_dcSpecies->Refresh();
    m_dcSpecies->moveTo(qMax(0, found->currentRow()));
}

void frmLifeHistory::showHead()
{
    const int row = m_dcSpecies->currentRow();
    m_dcSpecies->setCaption(QStringLiteral("                    Species: ") + QString::number(row + 1) + QStringLiteral(" of ")
                            + QString::number(m_dcSpecies->rowCount()));
    if (row < 0) {
        m_txtDisplay->clear();
        return;
    }
    const qint32 id = speciesId();
    const QString common = m_dcSpecies->value(row, QStringLiteral("Common")).toString();
    // A species deleted since the search has no classification to read: say so instead.
    if (session().Lookup(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"), QStringLiteral("SpeciesID = %1").arg(id)).toInt() != id) {
        m_txtDisplay->setText(common + QStringLiteral(": this species is no longer in the database."));
        return;
    }
    m_txtDisplay->setText(common + QLatin1Char(' ')
                          + GetClassificationText(session(), id, QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID")));
}

void frmLifeHistory::loadPage()
{
    showHead();
    if (m_dcSpecies->currentRow() < 0)
        return;
    const int outer = m_outer->currentIndex();
    if (outer < 0 || outer >= m_pages.size())
        return;
    const int inner = m_inner[outer] ? m_inner[outer]->currentIndex() : 0;
    if (LifePage *page = m_pages[outer].value(inner))
        page->load(speciesId());
}

// SPDX-License-Identifier: MIT
#pragma once

#include "WindowLinks.h"
#include "ZobWindow.h"
#include "clsScenario.h"

#include <functional>

class BuilderDietPage;
class BuilderIntakePage;
class BuilderSpeciesPage;
class BuilderWeightPage;
class DataControl;
class QLabel;
class QPushButton;
class QPlainTextEdit;
class QTabWidget;

//! The scenario builder: one wildlife scenario assembled on four pages (species, weight, diet,
//! intake). It holds no model of its own: each page loads from the scenario's rows and gScenario and
//! writes back at once. This class coordinates the pages: load and activation, what leaving a page
//! saves, the toolbar and File menu, the data-source look of a group, the reset of a scenario whose
//! species changed, and the close that saves everything and returns to the project.
class frmZOB : public ZobWindow, public BuilderView, public ScenarioNotes {
    Q_OBJECT
public:
    frmZOB(Session &session, QtWindowHost &host);
    ~frmZOB() override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    QSize sizeHint() const override { return QWidget::sizeHint().expandedTo({900, 680}); }

    // BuilderView: the dialogs that write the scenario call these when they end.
    //! Loads the species page for gScenario's species; a species other than the one the page showed
    //! counts as a change of species.
    void PrS_LoadSpeciesControls() override;
    void PrS_LoadWeightControls() override;
    void PuS_LoadDietControls() override;
    void UpdateDietItems() override;
    void setDietHead(const DietHeadText &head) override;
    void PrS_LoadIntakeControls() override;
    void PuS_SetTab(int index) override;

    // ScenarioNotes: what the scenario save reads from the window.
    QString note(int index) const override;
    QString dietSeason() const override;
    QString dietHabitat() const override;
    QString dietSex() const override;

    //! Loads the species page for a species (a scenario for data source 2); previousId is the
    //! species the scenario had, whose replacement clears the scenario.
    void loadSpecies(qint32 id, qint32 dataSourceId, qint32 previousId);
    //! Gives a group of fields (target 0 species ... 6 soil) the colour and lock of a data source.
    void SetDataSource(qint32 id, int target);
    //! Asks, then resets the weight, diet and intake of the scenario and its file name. False when
    //! the user answered no or the reset failed.
    bool ClearCurrentScenario();
    //! False, after a message, when no diet item exists at all.
    bool WildlifeDietItemsExist();

    //! "Calculations": saves the species and shows the review of the calculations where the
    //! scenario has diet items; the press that follows a change of species only clears and saves.
    void calculations();
    //! Turns to the species page and the air sub-page.
    void showFirstPages();
    //! "More Information...": the record behind the page on show, read-only.
    void cmdMoreInfo_Click();
    //! The page of ssTabSB on show.
    int currentPage() const;
    //! Note box txtNotes(index).
    QPlainTextEdit *notes(int index) const { return m_notes[index]; }
    //! A note box txtNotes(index) under its caption: blue text, double click to enlarge.
    QPlainTextEdit *noteBox(FormBuilder &b, int index, const QString &caption, int lines, const QString &labelName = {});
    //! The command row of page p: cmdSelect(2p) from the database, cmdSelect(2p + 1) hypothetical data,
    //! and cmdMoreInfo(p).
    void pageCommands(FormBuilder &page, int p, const std::function<void()> &fromDatabase,
                      const std::function<void()> &hypothetical);
    //! Opens another window by name for a record; where that window is not part of this version of
    //! the program the user is told so in a box, and false is returned.
    bool openWindow(const QString &name, const RecordRequest &request, bool modal);

private:
    void buildHeader(FormBuilder &b);
    void pageLeft(int page);
    void zoomNote(int index);
    void loadEditedScenario();
    //! Notes the species the page now stands for, against which a later choice counts as a change.
    void rememberSpecies();

    BuilderSpeciesPage *m_species = nullptr;
    BuilderWeightPage *m_weight = nullptr;
    BuilderDietPage *m_diet = nullptr;
    BuilderIntakePage *m_intake = nullptr;
    QTabWidget *m_ssTabSB = nullptr;
    DataControl *m_dcScenario = nullptr;
    QPlainTextEdit *m_notes[10] = {};
    int m_shownPage = 0;
    qint32 m_speciesSid = 0;
    qint32 m_speciesOnPage = 0;
    bool m_turning = false;
};

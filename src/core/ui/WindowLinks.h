// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

//! The small typed interfaces through which windows call one another. A window implements the ones
//! it offers; a caller finds it through the window host (QtWindowHost::link) by window name, so that
//! neither knows the other's class and no call goes by a method name in a string.

//! The calculation review: whether it has something to show before it is shown.
class CalculationReview {
public:
    virtual ~CalculationReview() = default;
    //! True when the scenario has diet rows to show.
    virtual bool ZOBCalculationsValid() = 0;
};

//! The head of a reference diet as the diet dialog copies it to the builder's diet page.
struct DietHeadText {
    QString season;   //!< "<from> - <to>"
    QString sex;
    QString habitat;
    QString trophicLevel;
    QString collectionNotes;
};

//! The scenario builder's load routines, run by the dialogs and pickers that write its rows.
class BuilderView {
public:
    virtual ~BuilderView() = default;
    virtual void PrS_LoadSpeciesControls() = 0;
    virtual void PrS_LoadWeightControls() = 0;
    //! Reloads the whole diet page (LoadDietControls).
    virtual void PuS_LoadDietControls() = 0;
    //! Reloads the diet-item grid and the diet's trophic level only.
    virtual void UpdateDietItems() = 0;
    //! Shows the head of a diet chosen in the diet dialog on the diet page.
    virtual void setDietHead(const DietHeadText &head) = 0;
    virtual void PrS_LoadIntakeControls() = 0;
    //! Shows page index of the builder.
    virtual void PuS_SetTab(int index) = 0;
};

//! The text zoom: a long text of another window's box shown large for reading or editing.
class TextZoom {
public:
    virtual ~TextZoom() = default;
    //! Shows the text of target under a caption, modally; true when the text was written back.
    virtual bool ZoomText(QWidget *target, const QString &caption, bool readOnly) = 0;
};

//! A window that lists rows of the database and reads them again on request.
class ListView {
public:
    virtual ~ListView() = default;
    virtual void refreshList() = 0;
};

//! The wet/dry basis dialog: purpose 1 asks the basis of "Sum Proportions to 1.0", any other the basis
//! of the calculations. On OK it sets the answer check box to 1 for wet and 0 for dry; Cancel leaves it.
class BasisChooser {
public:
    virtual ~BasisChooser() = default;
    virtual void setPurpose(qint16 iOpt, QWidget *answer) = 0;
};

// SPDX-License-Identifier: MIT
#pragma once

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

//! The scenario builder's load routines, run by the dialogs and pickers that write its rows.
class BuilderView {
public:
    virtual ~BuilderView() = default;
    virtual void PrS_LoadSpeciesControls() = 0;
    virtual void PrS_LoadWeightControls() = 0;
    virtual void PuS_LoadDietControls() = 0;
    virtual void PrS_LoadIntakeControls() = 0;
    //! Shows page index of the builder.
    virtual void PuS_SetTab(int index) = 0;
};

//! A window that lists rows of the database and reads them again on request.
class ListView {
public:
    virtual ~ListView() = default;
    virtual void refreshList() = 0;
};

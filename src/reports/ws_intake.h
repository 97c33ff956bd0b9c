// SPDX-License-Identifier: MIT
#pragma once

#include "ReportDesign.h"

//! The intake report of the open scenario: its intake rows, and under "Supporting Information" the
//! equations of air, water and metabolic rate with the 95 % limits of the metabolic rate, and the
//! soil intake in grams a day.
class ws_intake : public ScenarioReport {
public:
    explicit ws_intake(Session &session);
    void ActiveReport_ReportStart() override;

    //! DD, the daily dry-weight diet.
    float GetDailyDryDiet();
    //! The half width of the 95 % interval of log10 FMR for a model at weight wt (grams); 0 when the
    //! model lacks one of its coefficients.
    double GetFMRCILimit(qint32 intakeModelId, float wt);

private:
    void fillHeads(qint32 sid, float &weight);
    void fillEquations(qint32 sid, float weight);
    void fillSoil(qint32 sid);
};

//! The intake rows of a scenario as the intake reports list them (rows whose data source or
//! estimator has no partner are left out).
QString intakeRatesSql(qint32 sid);
//! The columns of the intake rows: their heads into heads at y, their fields into detail.
void addIntakeColumns(ReportSection &heads, double y, ReportSection &detail);

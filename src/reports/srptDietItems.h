// SPDX-License-Identifier: MIT
#pragma once

#include "ActiveReport.h"

//! The diet items of a scenario, one block each, as the diet report prints them below its own
//! fields: proportion, trophic level, classification, gross energy, assimilation efficiency and
//! moisture, each with its assignment, source and reference.
class srptDietItems : public ActiveReport {
public:
    srptDietItems(Session &session, qint32 sid);
    void ActiveReport_ReportStart() override;

private:
    qint32 m_sid;
};

// SPDX-License-Identifier: MIT
#pragma once

class FormBuilder;
class LifePage;
class Session;

//! The table pages of the life-history browser, each built into a page builder.
namespace BrowserPages {
LifePage *intakeRates(Session &s, FormBuilder &b);
LifePage *populationSpecifics(Session &s, FormBuilder &b);
LifePage *seasonalSpecifics(Session &s, FormBuilder &b);
LifePage *specificWeights(Session &s, FormBuilder &b);
LifePage *growthRate(Session &s, FormBuilder &b);
}  // namespace BrowserPages

// SPDX-License-Identifier: MIT
#pragma once

class frmZOB;

//! "More Information...": opens, read-only, the record behind the builder's page (0 species,
//! 1 weight, 2 diet, 3 intake with its sub-page), or says why there is none. Errors go to the caller.
void showMoreInformation(frmZOB &window, int page, int intakePage);

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

//! "Taxon: <taxon>", "Common Name: <common>" and "Scientific Name: <latin>" of a species, one to a
//! line; the values are empty for a species that is not there.
QString speciesHeaderText(Session &s, qint32 speciesId);

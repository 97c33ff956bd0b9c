// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

//! Reads the first line of a scenario (.ZOB) or project (.NAV) marker file: the number after the first
//! ":" goes to gScenario.SID (gProject.PID for .NAV), and the next two (four for .NAV) comma items,
//! each followed by CRLF, go to the file chooser's description box. Returns false for a missing file
//! or a line without the format, without a message of its own.
bool ReadFileHeader(Session &s, const QString &path);

//! "Taxon: <taxon>", "Common Name: <common>" and "Scientific Name: <latin>" of a species, one to a
//! line; the values are empty for a species that is not there, and found (if given) says whether it is.
QString speciesHeaderText(Session &s, qint32 speciesId, bool *found = nullptr);

// SPDX-License-Identifier: MIT
#pragma once

#include "PathSpelling.h"

#include <QString>

class FileChooser;
class QtWindowHost;
class ScenarioWindow;
class Session;

//! Connects the model objects of a session to the windows of this layer: the project object to
//! frmProject, the scenario object to the builder window, and the file chooser service to
//! frmSearch_File. The main window's load runs it once gProject and gScenario exist.
void installSystemLinks(Session &session, QtWindowHost &host);

//! The link that shows the scenario builder ("frmZOB") for a scenario object; a new scenario object
//! is given it so that it opens the builder as the one it replaces did. Null before installSystemLinks.
ScenarioWindow *builderLink(QtWindowHost &host);

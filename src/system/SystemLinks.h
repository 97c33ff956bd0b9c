// SPDX-License-Identifier: MIT
#pragma once

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

//! The same path with each folder and file name spelled as it is on disk, compared without regard to
//! case: the stored paths are kept in upper case as the user's row has always held them, and a
//! case-sensitive file system needs the real spelling to find them. A part that does not exist is
//! left as given.
QString resolvePathCase(const QString &path);

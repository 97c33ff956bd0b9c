// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! Paths as the user sees and stores them. The legacy program turned chosen paths to capitals and gave
//! folders a closing separator, which is harmless where the file system ignores case. Where it does
//! not, a path is kept as it is spelled on disk, so that what is shown and stored names a file or
//! folder that exists.

//! The same path with each folder and file name spelled as it is on disk, compared without regard to
//! case: stored paths may be in upper case, and a case-sensitive file system needs the real spelling
//! to find them. A part that does not exist is left as given.
QString resolvePathCase(const QString &path);

//! True where the file system holding path (or its nearest existing folder) compares names without
//! regard to case. Decided by looking at the disk; where nothing tells, by the platform's usual rule.
bool pathIgnoresCase(const QString &path);

//! A chosen path as the path boxes show it: in capitals where case is ignored, else unchanged.
QString shownPath(const QString &path, bool ignoresCase);
QString shownPath(const QString &path);

//! The folder chooser's answer: where case is ignored the folder with a closing separator; else the
//! folder in its spelling on disk, without one.
QString chosenFolder(const QString &folder, bool ignoresCase);
QString chosenFolder(const QString &folder);

//! A path kept in a user's row: as given where case is ignored, else in its spelling on disk.
QString keptPath(const QString &path, bool ignoresCase);
QString keptPath(const QString &path);
